#pragma once

#include <string_view>

/// The demo shop's goods: the text of shop/demo-goods/goods.csv, a goods sheet (see GoodsField).
/// Only the days of its promotions are no dates but counted from the day of the shop's creation.
extern const std::string_view kDemoGoods;
