#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/Currency.h"
#include "takings/Sums.h"

class TakingsSource;

/// Goods that the report names because of what is in stock. Quantities are in stock units.
struct StockedGoods {
  std::string code, name, category;
  double stock = 0;
  Currency costPrice;
  Currency value;   ///< stock x cost price; nothing of what the shop owes its stock
  double sold = 0;  ///< in the period
};

/// The most important ones in their order, and how many there are in all.
struct StockedList {
  std::vector<StockedGoods> first;
  std::int64_t all = 0;
  Currency value;  ///< of all
};

struct StockLists {
  StockedList slow;  ///< nothing sold; the highest value first
  StockedList low;   ///< less in stock than the limit; the least first
};

/// By code in lower case.
using GoodsByCode = std::unordered_map<std::string, GoodsSums>;

/// Goes through the shop's goods once and lists those that did not move, and those whose stock is
/// below the limit; `most` of each. Nothing when it was stopped. Throws StoreError, Overflow.
[[nodiscard]] std::optional<StockLists> readStockLists(TakingsSource& shop, const GoodsByCode& sold,
                                                       double limit, std::size_t most,
                                                       const std::function<bool()>& goOn);
