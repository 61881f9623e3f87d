#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "reports/ResultColumns.h"
#include "reports/SoldLines.h"

/// What a sales query found: its lines in the order shown, and behind them the totals row, once all
/// lines are there.
class ResultList {
 public:
  void append(SoldPage page);
  /// All lines are there: the totals row joins them.
  void complete();

  std::size_t lineCount() const { return lines_.size(); }
  /// Lines and totals row.
  std::size_t rowCount() const { return lines_.size() + (complete_ ? 1 : 0); }
  bool isTotals(std::size_t row) const { return complete_ && row == lines_.size(); }
  /// The line in that row, which is not the totals row.
  const SoldLine& line(std::size_t row) const { return lines_[order_[row]]; }
  const std::vector<SoldGoods>& goods() const { return goods_; }

  /// Each line's quantity rounded to a whole number, halves to even, a missing one as 0. Nothing
  /// when the sum does not fit.
  std::optional<std::int64_t> totalQuantity() const { return totalQuantity_; }
  /// Nothing when the sum does not fit.
  std::optional<Currency> totalMoney() const { return totalMoney_; }

  /// What the lines' bills came to in kinds of payment.
  const std::vector<TenderSum>& tenders() const { return tenders_; }

  /// A cell as shown; a missing value is empty, a sum that does not fit is said.
  std::string text(std::size_t row, ResultColumn column) const;

  /// Sorts the lines: times as times, numbers as numbers, texts without regard to ASCII case; a
  /// missing value comes before all others. Lines that are equal keep their order. The totals row
  /// stays last.
  void sort(ResultColumn column, bool descending);
  /// The lines from last to first.
  void reverse();

 private:
  template <class Key>
  void sortBy(const Key& key, bool descending);
  std::vector<std::uint32_t> goodsRanks(ResultColumn column) const;

  std::vector<SoldLine> lines_;
  std::vector<SoldGoods> goods_;
  std::vector<std::uint32_t> order_;  ///< lines by row
  std::vector<TenderSum> tenders_;
  bool complete_ = false;
  std::optional<std::int64_t> totalQuantity_ = 0;
  std::optional<Currency> totalMoney_ = Currency();
};
