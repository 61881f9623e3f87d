#include "shop/RowDoubts.h"

#include <algorithm>
#include <optional>
#include <variant>

#include "base/Words.h"
#include "shop/Table.h"

namespace {

/// One row's fields by the names of their columns.
struct Row {
  const Table& table;
  const std::vector<Value>& values;
  const std::vector<bool>& isInFile;

  /// The value that the file has for a column; nothing when the table or the file lacks it.
  const Value* given(const char* column) const {
    const std::optional<std::size_t> index = table.indexOf(column);
    return index && isInFile[*index] ? &values[*index] : nullptr;
  }
};

bool isEmpty(const Value& value) {
  return std::holds_alternative<std::monostate>(value);
}

bool isNothing(const Value& price) {
  return isEmpty(price) || price == Value(std::int64_t{0}) || price == Value(0.0);
}

std::string barcodeDoubt(const Row& row) {
  const Value* barcode = row.given("sptm");
  if (barcode == nullptr || !hasWrongCheckDigit(std::get<std::string>(*barcode))) return {};
  return Words::tr("条码 %1 的校验位不对，可能抄错了", std::get<std::string>(*barcode));
}

// Dates are texts whose order is the order in time.
std::string promotionDoubt(const Row& row) {
  const Value *first = row.given("kssj"), *last = row.given("jssj"), *price = row.given("cxj");
  if (first == nullptr || last == nullptr || isEmpty(*first) || isEmpty(*last)) return {};
  if (*last < *first) return Words::tr("促销的结束日期 jssj 早于开始日期 kssj，永远不会生效");
  if (price == nullptr || !isNothing(*price)) return {};
  return Words::tr("有促销日期，促销价 cxj 却空着或者是 0，促销期间会要求收银员输入价格");
}

}  // namespace

bool hasWrongCheckDigit(std::string_view barcode) {
  constexpr std::size_t kLengths[] = {8, 12, 13};
  const bool isPrinted =
      std::find(std::begin(kLengths), std::end(kLengths), barcode.size()) != std::end(kLengths);
  if (!isPrinted || barcode.find_first_not_of("0123456789") != std::string_view::npos) return false;
  int sum = 0;
  for (std::size_t fromEnd = 0; fromEnd < barcode.size(); ++fromEnd) {
    const int digit = barcode[barcode.size() - 1 - fromEnd] - '0';
    sum += fromEnd % 2 == 0 ? digit : 3 * digit;
  }
  return sum % 10 != 0;
}

std::string doubtsOf(const Table& table, const std::vector<Value>& values,
                     const std::vector<bool>& isInFile) {
  const Row row{table, values, isInFile};
  std::string doubts = barcodeDoubt(row);
  if (const std::string promotion = promotionDoubt(row); !promotion.empty()) {
    doubts += (doubts.empty() ? "" : Words::tr("；")) + promotion;
  }
  return doubts;
}
