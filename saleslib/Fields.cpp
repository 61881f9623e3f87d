#include "saleslib/Fields.h"

#include <limits>
#include <string>

#include "base/Words.h"
#include "store/Row.h"
#include "store/StoreError.h"

namespace {

template <class Whole>
Whole fitted(std::int64_t number, std::string_view column) {
  if (number < std::numeric_limits<Whole>::min() || number > std::numeric_limits<Whole>::max()) {
    throw StoreError(Words::tr("数据文件中 %1 的值超出范围：%2", column, number));
  }
  return static_cast<Whole>(number);
}

}  // namespace

std::int16_t whole16(const Row& row, std::string_view column) {
  return fitted<std::int16_t>(row.whole(column).value_or(0), column);
}

std::int32_t whole32(const Row& row, std::string_view column) {
  return fitted<std::int32_t>(row.whole(column).value_or(0), column);
}

Currency money(const Row& row, std::string_view column) {
  return row.currency(column).value_or(Currency());
}

std::int32_t key32(std::int64_t key) {
  return fitted<std::int32_t>(key, "id");
}
