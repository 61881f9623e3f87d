#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "store/Value.h"

/// One row of a result, read by column name without regard to ASCII case. Null reads as nothing.
/// A column that is not in the result, or a value that is not of the type asked for, throws
/// StoreError: a price that is no number is never taken for 0.
class Row {
 public:
  virtual ~Row() = default;

  /// Null reads as an empty text; numbers read in general form.
  std::string text(std::string_view column) const;
  std::optional<Currency> currency(std::string_view column) const;
  std::optional<double> number(std::string_view column) const;
  std::optional<std::int64_t> whole(std::string_view column) const;
  std::optional<DateTime> dateTime(std::string_view column) const;
  bool isNull(std::string_view column) const;
  /// Whatever the column holds.
  Value value(std::string_view column) const { return field(column); }

 protected:
  virtual Value field(std::string_view column) const = 0;
};
