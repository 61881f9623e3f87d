#pragma once

#include <compare>

/// A discount factor: 1 is the full price, 0.9 is ten per cent off. Single precision by contract,
/// decimal in behaviour: it holds the seven significant digits that it shows, so 0.9 is nine
/// tenths.
class Discount {
 public:
  constexpr Discount() = default;  ///< no discount: 1
  /// Rounded to seven digits. What is no number (infinity, NaN) gives no discount: the full price
  /// is the one that the customer can see and question.
  explicit Discount(double factor);

  constexpr double factor() const { return factor_; }
  constexpr bool isNone() const { return factor_ == 1.0; }
  constexpr auto operator<=>(const Discount&) const = default;  // NOLINT(modernize-use-nullptr)

 private:
  double factor_ = 1.0;
};
