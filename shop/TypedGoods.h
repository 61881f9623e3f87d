#pragma once

#include <string>
#include <vector>

#include "shop/GoodsPreview.h"

/// Goods as the owner types them at the first start, where no sheet has them.
struct TypedGoods {
  std::string code;  ///< barcode and item code; one that the sale screen takes for a piece of an
                     ///< item number is that too
  std::string name, unit, price;
  std::string stock;  ///< may be empty
};

/// The goods as a goods sheet with the shop's own headings.
std::string sheetOf(const std::vector<TypedGoods>& goods);
/// What such goods would do to a shop that has none: why they cannot be, what is doubtful. Throws
/// StoreError when there is no room for a data file that nobody keeps.
[[nodiscard]] GoodsPreview tryGoods(const TypedGoods& goods);
