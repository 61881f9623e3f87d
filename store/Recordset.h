#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "store/Row.h"

class Rows;

/// A query's whole result at hand, for when the number of rows is needed before reading.
class Recordset {
 public:
  using Columns = std::vector<std::string>;

  /// One row of the set; valid as long as the set.
  class Record : public Row {
   public:
    Record(const Columns& columns, std::vector<Value> values);

   protected:
    Value field(std::string_view column) const override;

   private:
    const Columns* columns_;
    std::vector<Value> values_;
  };

  Recordset(std::shared_ptr<const Columns> columns, std::vector<std::vector<Value>> rows);

  std::size_t count() const { return records_.size(); }
  /// `index` from 0.
  const Row& row(std::size_t index) const;

 private:
  std::shared_ptr<const Columns> columns_;
  std::vector<Record> records_;
};
