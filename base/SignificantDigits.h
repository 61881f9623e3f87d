#pragma once

#include <array>
#include <string_view>

/// A finite double as people write it: 15 significant decimal digits, trailing zeros dropped.
/// value = (negative ? -1 : 1) x d.ddd... x 10^exponent. Zero is "0" and never negative.
class SignificantDigits {
 public:
  static constexpr int kMost = 15;

  /// The value is finite.
  explicit SignificantDigits(double value);

  bool negative() const { return negative_; }
  /// 1 ... 15 digits without a point.
  std::string_view digits() const { return {digits_.data(), count_}; }
  /// Power of ten of the first digit.
  int exponent() const { return exponent_; }

 private:
  bool negative_ = false;
  std::array<char, kMost> digits_{};
  std::size_t count_ = 0;
  int exponent_ = 0;
};
