#include "reports/ResultList.h"

#include <QtGlobal>
#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "base/Discount.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"

namespace {

/// Costs and profits are nobody's business at the till.
constexpr const char* kMasked = "***";
/// As files and papers have them; ResultModel shows them in the screen's language.
constexpr const char* kTooLarge = QT_TRANSLATE_NOOP("ResultModel", "超出范围");
constexpr const char* kTotals = QT_TRANSLATE_NOOP("ResultModel", "合计");

template <class Number>
std::string shown(const std::optional<Number>& number) {
  return number ? generalNumber(*number) : std::string();
}

/// Adds to a sum; one that does not fit is nothing from then on.
void add(std::optional<std::int64_t>& sum, double quantity) {
  try {
    if (sum && __builtin_add_overflow(*sum, wholeHalfEven(quantity), &*sum)) sum.reset();
  } catch (const Overflow&) {
    sum.reset();
  }
}

void add(std::optional<Currency>& sum, Currency money) {
  try {
    if (sum) *sum += money;
  } catch (const Overflow&) {
    sum.reset();
  }
}

std::string SoldGoods::*goodsText(ResultColumn column) {
  switch (column) {
    case kColumnCode:
      return &SoldGoods::code;
    case kColumnName:
      return &SoldGoods::name;
    case kColumnUnit:
      return &SoldGoods::unit;
    case kColumnBarcode:
      return &SoldGoods::barcode;
    case kColumnCategory:
      return &SoldGoods::category;
    default:
      return nullptr;
  }
}

}  // namespace

void ResultList::append(SoldPage page) {
  for (const SoldLine& line : page.lines) {
    if (line.quantity) add(totalQuantity_, *line.quantity);
    if (line.money) add(totalMoney_, *line.money);
    order_.push_back(static_cast<std::uint32_t>(order_.size()));
  }
  if (!page.tenders.empty()) tenders_ = page.tenders;
  lines_.insert(lines_.end(), page.lines.begin(), page.lines.end());
  std::move(page.goods.begin(), page.goods.end(), std::back_inserter(goods_));
}

void ResultList::complete() {
  complete_ = true;
}

std::string ResultList::text(std::size_t row, ResultColumn column) const {
  const bool masked = column == kColumnCost || column == kColumnProfit;
  if (isTotals(row)) {
    if (column == kColumnTime) return kTotals;
    if (column == kColumnQuantity)
      return totalQuantity_ ? std::to_string(*totalQuantity_) : kTooLarge;
    if (column == kColumnMoney) return totalMoney_ ? generalNumber(*totalMoney_) : kTooLarge;
    return masked ? kMasked : "";
  }
  const SoldLine& found = line(row);
  if (const auto part = goodsText(column)) return goods_[found.goods].*part;
  switch (column) {
    case kColumnTime:
      return found.time ? generalText(*found.time) : "";
    case kColumnBill:
      return found.billNo ? std::to_string(*found.billNo) : "";
    case kColumnQuantity:
      return shown(found.quantity);
    case kColumnPrice:
      return shown(found.price);
    case kColumnDiscount:
      return found.discount ? generalNumber(Discount(*found.discount)) : "";
    case kColumnMoney:
      return shown(found.money);
    default:
      return kMasked;
  }
}

template <class Key>
void ResultList::sortBy(const Key& key, bool descending) {
  std::stable_sort(order_.begin(), order_.end(), [&](std::uint32_t a, std::uint32_t b) {
    return descending ? key(lines_[b]) < key(lines_[a]) : key(lines_[a]) < key(lines_[b]);
  });
}

void ResultList::sort(ResultColumn column, bool descending) {
  const auto by = [&](auto member) {
    sortBy(
        [member](const SoldLine& line) -> const auto& { return line.*member; }, descending);
  };
  switch (column) {
    case kColumnTime:
      return by(&SoldLine::time);
    case kColumnBill:
      return by(&SoldLine::billNo);
    case kColumnQuantity:
      return by(&SoldLine::quantity);
    case kColumnPrice:
      return by(&SoldLine::price);
    case kColumnDiscount:
      return by(&SoldLine::discount);
    case kColumnMoney:
      return by(&SoldLine::money);
    default:
      break;
  }
  if (!goodsText(column)) return;
  const std::vector<std::uint32_t> ranks = goodsRanks(column);
  sortBy([&](const SoldLine& line) { return ranks[line.goods]; }, descending);
}

// The few goods are compared as texts, the many lines by their goods' places; equal texts share
// one.
std::vector<std::uint32_t> ResultList::goodsRanks(ResultColumn column) const {
  std::vector<std::string> texts;
  for (const SoldGoods& one : goods_) texts.push_back(asciiLower(one.*goodsText(column)));
  std::vector<std::uint32_t> sorted(texts.size());
  std::iota(sorted.begin(), sorted.end(), 0u);
  std::sort(sorted.begin(), sorted.end(), [&](auto a, auto b) { return texts[a] < texts[b]; });
  std::vector<std::uint32_t> ranks(texts.size());
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    const bool equal = texts[sorted[i]] == texts[sorted[i - 1]];
    ranks[sorted[i]] = ranks[sorted[i - 1]] + (equal ? 0 : 1);
  }
  return ranks;
}

void ResultList::reverse() {
  std::reverse(order_.begin(), order_.end());
}
