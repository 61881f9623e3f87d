#include "base/Discount.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

/// The double nearest to the value's seven significant decimal digits.
double sevenDigits(double value) {
  std::array<char, 32> text{};
  const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::scientific, 6);
  double rounded = 0;
  std::from_chars(text.data(), written.ptr, rounded);
  return rounded == 0 ? 0.0 : rounded;  // no negative zero
}

}  // namespace

Discount::Discount(double factor) : factor_(std::isfinite(factor) ? sevenDigits(factor) : 1.0) {}
