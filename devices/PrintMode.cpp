#include "devices/PrintMode.h"

PrintMode PrintMode::of(std::string_view setting) {
  if (setting == "直接打印1联") return {.copies = 1};
  if (setting == "直接打印2联") return {.copies = 2};
  if (setting == "直接打印3联") return {.copies = 3};
  if (setting == "打印前提示默认'是'") return {.asks = true, .yesPreselected = true};
  if (setting == "打印前提示默认'否'") return {.asks = true};
  return {};
}
