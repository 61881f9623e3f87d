#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// A decimal number: mantissa / 10^decimals. What parsing and exact products work on.
struct Decimal {
  std::int64_t mantissa = 0;
  int decimals = 0;  ///< 0 ... 18

  /// Up to 18 significant digits, with sign and point; blanks around and full-width digits are
  /// allowed, an exponent is not. Nothing for any other text.
  static std::optional<Decimal> parse(std::string_view text);
  /// The number as its 15 significant digits show it (0.1 is one tenth). Nothing when it is not
  /// finite or out of range.
  static std::optional<Decimal> fromDouble(double value);
};
