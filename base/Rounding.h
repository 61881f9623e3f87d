#pragma once

#include <limits>

/// The two rounding rules of the house, on exact integers. Everything that rounds money or a number
/// as text goes through one of them.

/// 128 bits: room for the exact products of money, quantities and discounts.
__extension__ typedef __int128 Wide;

/// numerator / denominator to the nearest whole number; a half goes to the even neighbour.
/// The denominator is positive.
constexpr Wide dividedHalfEven(Wide numerator, Wide denominator) {
  const Wide quotient = numerator / denominator;
  const Wide remainder = numerator % denominator;
  const Wide part = remainder < 0 ? -remainder : remainder;
  // Compared with what is missing to the next number: twice the part may not fit.
  const Wide missing = denominator - part;
  if (part < missing || (part == missing && quotient % 2 == 0)) return quotient;
  return numerator < 0 ? quotient - 1 : quotient + 1;
}

/// The same, with a half going away from zero.
constexpr Wide dividedHalfAway(Wide numerator, Wide denominator) {
  const Wide quotient = numerator / denominator;
  const Wide remainder = numerator % denominator;
  const Wide part = remainder < 0 ? -remainder : remainder;
  if (part < denominator - part) return quotient;
  return numerator < 0 ? quotient - 1 : quotient + 1;
}

/// 10 to the power of 0 ... kMostZeros.
constexpr int kMostZeros = 38;
constexpr Wide powerOfTen(int zeros) {
  Wide power = 1;
  for (int i = 0; i < zeros; ++i) power *= 10;
  return power;
}

/// Whether the value is one of Whole's.
template <typename Whole>
constexpr bool fits(Wide value) {
  return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}
