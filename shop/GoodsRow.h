#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "shop/GoodsField.h"
#include "store/Value.h"

struct GoodsMapping;

/// One row of a goods sheet.
class GoodsRow {
 public:
  using Fields = std::array<std::optional<Value>, kGoodsFields>;

  /// Reads the row's fields; the reason when it is none, or an empty text. A field that the sheet
  /// does not have, and an empty stock, is not given.
  std::string read(const std::vector<std::string>& fields, const GoodsMapping& mapping);

  const std::optional<Value>& value(GoodsField field) const {
    return values_[static_cast<std::size_t>(field)];
  }
  const Fields& values() const { return values_; }
  bool gives(GoodsField field) const { return value(field).has_value(); }
  /// A text that is empty when it is not given.
  std::string text(GoodsField field) const;
  bool hasCase() const { return !text(GoodsField::kCaseBarcode).empty(); }

 private:
  std::string caseFault() const;

  Fields values_;
};

/// A value as a text, numbers in general form; nothing is an empty text.
std::string textOf(const Value& value);
