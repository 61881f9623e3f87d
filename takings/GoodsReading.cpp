#include "takings/GoodsReading.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "store/Row.h"
#include "takings/TakingsSource.h"

namespace {

constexpr int kGoodsPerProgress = 4096;

/// Keeps the first of many in an order, in the room of twice as many.
template <class Before>
class FirstOf {
 public:
  FirstOf(std::size_t most, Before before) : most_(most), before_(before) {}

  void add(StockedGoods goods) {
    ++list_.all;
    list_.value += goods.value;
    list_.first.push_back(std::move(goods));
    if (list_.first.size() >= 2 * most_ + 1) cut();
  }
  StockedList taken() {
    cut();
    return std::move(list_);
  }

 private:
  void cut() {
    auto& kept = list_.first;
    const auto end = kept.begin() + static_cast<std::ptrdiff_t>(std::min(most_, kept.size()));
    std::partial_sort(kept.begin(), end, kept.end(), before_);
    kept.erase(end, kept.end());
  }

  std::size_t most_;
  Before before_;
  StockedList list_;
};

bool isWorthMore(const StockedGoods& a, const StockedGoods& b) {
  return a.value != b.value ? a.value > b.value : a.code < b.code;
}
bool isLess(const StockedGoods& a, const StockedGoods& b) {
  return a.stock != b.stock ? a.stock < b.stock : a.code < b.code;
}

StockedGoods goodsOf(const Row& row) {
  StockedGoods goods;
  goods.code = row.text("f_spbm");
  goods.stock = row.number("quantity").value_or(0);
  goods.name = row.text("f_spmc");
  goods.category = row.text("f_splbmc");
  goods.costPrice = row.currency("f_zhjj").value_or(Currency());
  if (goods.stock > 0) goods.value = lineAmount(goods.costPrice, goods.stock, Discount());
  return goods;
}

}  // namespace

std::optional<StockLists> readStockLists(TakingsSource& shop, const GoodsByCode& sold, double limit,
                                         std::size_t most, const std::function<bool()>& goOn) {
  FirstOf slow(most, isWorthMore);
  FirstOf low(most, isLess);
  int seen = 0;
  const bool isWhole = shop.goods([&](const Row& row) {
    if (++seen % kGoodsPerProgress == 0 && !goOn()) return false;
    StockedGoods goods = goodsOf(row);
    const auto found = sold.find(asciiLower(goods.code));
    const bool moves = found != sold.end() && found->second.moved;
    if (found != sold.end()) goods.sold = found->second.quantity;
    if (!row.isNull("quantity") && goods.stock < limit) low.add(goods);
    if (!moves) slow.add(std::move(goods));
    return true;
  });
  if (!isWhole) return std::nullopt;
  return StockLists{slow.taken(), low.taken()};
}
