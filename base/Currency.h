#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Discount.h"

/// Money in yuan, fixed point with four decimals: a 64-bit count of ten-thousandths.
/// No implicit conversion, no floating point inside; arithmetic that does not fit throws Overflow.
class Currency {
 public:
  static constexpr std::int64_t kScale = 10000;

  constexpr Currency() = default;
  /// From a count of ten-thousandths of a yuan.
  static constexpr Currency fromScaled(std::int64_t tenThousandths) {
    return Currency(tenThousandths);
  }
  /// From whole yuan. Throws Overflow.
  static Currency fromYuan(std::int64_t yuan);
  /// Reads what people type and what the data file holds: blanks around, a sign, digits (full-width
  /// ones too), a decimal point. More than four decimals are rounded, halves to even. Nothing for
  /// any other text or a value that does not fit.
  static std::optional<Currency> parse(std::string_view text);

  constexpr std::int64_t scaled() const { return scaled_; }
  constexpr bool isZero() const { return scaled_ == 0; }
  constexpr auto operator<=>(const Currency&) const = default;  // NOLINT(modernize-use-nullptr)

  Currency operator-() const;
  Currency& operator+=(Currency other);
  Currency& operator-=(Currency other);
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend Currency operator-(Currency a, Currency b) { return a -= b; }

 private:
  constexpr explicit Currency(std::int64_t scaled) : scaled_(scaled) {}
  std::int64_t scaled_ = 0;
};

/// The amount of a bill line: price x quantity x discount, rounded to 0.01, halves away from zero.
/// Quantity and discount count as the decimal numbers that they show (0.1 is a tenth).
/// Throws Overflow when it does not fit, when the exact product has more digits than 128 bits hold,
/// or when the quantity is not finite.
Currency lineAmount(Currency price, double quantity, Discount discount);

/// Rounded to whole yuan, halves to the even neighbour: 12.50 gives 12, 13.50 gives 14.
std::int64_t wholeHalfEven(Currency amount);

/// Rounded to 0.01, halves away from zero.
Currency roundedToFen(Currency amount);

/// Member points for an amount: amount / unit + points, rounded to a whole number, halves to even.
/// Nothing when the unit is not positive or the result leaves the 16-bit range of points.
std::optional<std::int16_t> pointsAfter(Currency amount, std::int16_t unit, std::int16_t points);
