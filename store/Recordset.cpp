#include "store/Recordset.h"

#include <utility>

#include "base/Text.h"
#include "base/Words.h"
#include "store/StoreError.h"

Recordset::Record::Record(const Columns& columns, std::vector<Value> values)
    : columns_(&columns), values_(std::move(values)) {}

Value Recordset::Record::field(std::string_view column) const {
  for (std::size_t index = 0; index < columns_->size(); ++index) {
    if (equalIgnoringCase((*columns_)[index], column)) return values_[index];
  }
  throw StoreError(Words::tr("查询结果里没有“%1”这一列。", column));
}

Recordset::Recordset(std::shared_ptr<const Columns> columns, std::vector<std::vector<Value>> rows)
    : columns_(std::move(columns)) {
  records_.reserve(rows.size());
  for (std::vector<Value>& values : rows) records_.emplace_back(*columns_, std::move(values));
}

const Row& Recordset::row(std::size_t index) const {
  ensure(index < records_.size(), "a record is read by an index below the count");
  return records_[index];
}
