#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// A decimal number: mantissa / 10^decimals. What parsing and exact products work on.
struct Decimal {
  std::int64_t mantissa = 0;
  int decimals = 0;  ///< 0 ... 18

  /// Digits with a sign before and a point among them, at least one digit; blanks around and
  /// full-width characters are allowed, an exponent or a separator of thousands is not. Nothing for
  /// any other text, for more than 18 decimals or a mantissa over 64 bits (18 digits always fit).
  static std::optional<Decimal> parse(std::string_view text);
  /// The number as its 15 significant digits show it (0.1 is one tenth), rounded to 18
  /// decimals. Nothing when it is not finite or out of range.
  static std::optional<Decimal> fromDouble(double value);
};
