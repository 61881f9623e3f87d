#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shop/Column.h"

/// What a column of a goods sheet holds. One row is one article under one barcode; the case it is
/// packed in may have a barcode and a price of its own.
enum class GoodsField : std::size_t {
  kItemCode,
  kBarcode,
  kItemNumber,
  kName,
  kSpecification,
  kUnit,
  kOrigin,
  kPrice,
  kMemberPrice,
  kDiscount,
  kPromotionPrice,
  kPromotionFrom,
  kPromotionTo,
  kCost,
  kStock,
  kCategory,
  kCaseBarcode,
  kCaseUnit,
  kCaseRatio,
  kCasePrice,
};
inline constexpr std::size_t kGoodsFields = 20;

/// The heading of the shop's own sheets, and what the field takes. An item code or barcode may be
/// empty here although its table needs one: the other one stands for it.
const Column& columnOf(GoodsField field);
const char* headingOf(GoodsField field);
/// The field of that heading exactly, blanks at its ends aside.
std::optional<GoodsField> fieldOfHeading(std::string_view heading);
/// The field that a heading of somebody else's sheet means most likely; nothing when none does.
std::optional<GoodsField> guessedField(std::string_view heading);
