#pragma once

#include <array>

/// How large a shop is: its goods, and the lines it has sold in ten years.
struct ShopSize {
  int goods;
  int lines;
};

inline constexpr std::array<ShopSize, 3> kShopSizes = {
    {{10'000, 100'000}, {100'000, 1'000'000}, {1'000'000, 10'000'000}}};
