#pragma once

#include <string_view>

/// The demo shop's goods as the text of tools/demo-goods/goods.csv, one row per item code.
extern const std::string_view kDemoGoods;
