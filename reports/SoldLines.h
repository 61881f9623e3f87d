#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "reports/TenderSum.h"

class Row;

/// What the lines of the same goods have in common, kept once.
struct SoldGoods {
  std::string code, name, unit, barcode, category;
};

/// One sold line as the query finds it; a missing value is nothing.
struct SoldLine {
  std::optional<DateTime> time;
  std::optional<std::int32_t> billNo;
  std::uint32_t goods = 0;  ///< index among the goods of its query
  std::optional<double> quantity;
  std::optional<Currency> price;
  std::optional<float> discount;
  std::optional<Currency> money;
};

/// A part of a result, in the order of the statement: lines, and goods that no earlier part had.
struct SoldPage {
  std::vector<SoldLine> lines;
  std::vector<SoldGoods> goods;
  std::vector<TenderSum> tenders;  ///< with the last part: of all bills that were found
};

/// Turns the rows of one query into pages.
class SoldLineCollector {
 public:
  /// Throws StoreError for a value that is not of its column's type.
  void take(const Row& row);
  std::size_t size() const { return page_.lines.size(); }
  /// The lines taken since the last page.
  SoldPage page();

 private:
  std::uint32_t indexOf(SoldGoods goods);

  SoldPage page_;
  std::unordered_map<std::string, std::uint32_t> goodsByTexts_;
  std::string texts_;  ///< of the goods looked up, kept for its room
};
