#include "sale/OriginalPrice.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/SaleState.h"

namespace {

[[noreturn]] void tooLarge() {
  throw Overflow("原价合计太大，无法计算。");
}

std::int64_t plus(std::int64_t a, std::int64_t b) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(a, b, &sum)) tooLarge();
  return sum;
}

}  // namespace

std::int64_t originalPrice(const BillRow& row) {
  const auto price = Currency::parse(row.cells[BillRow::kPrice]);
  const auto quantity = parseNumber(row.cells[BillRow::kQuantity]);
  if (!price || !quantity) return 0;
  std::int64_t product = 0;
  if (__builtin_mul_overflow(wholeHalfEven(*price), wholeHalfEven(*quantity), &product)) tooLarge();
  return product;
}

std::int64_t originalPrice(const std::vector<BillRow>& rows) {
  std::int64_t sum = 0;
  for (const BillRow& row : rows) sum = plus(sum, originalPrice(row));
  return sum;
}

std::int64_t originalPrice(const std::vector<BillRow>& rows, int index,
                           const BillRow& replacement) {
  const std::int64_t before = originalPrice(rows[static_cast<std::size_t>(index)]);
  return plus(originalPrice(rows) - before, originalPrice(replacement));
}
