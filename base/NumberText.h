#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Currency.h"

/// Numbers as people read and type them, independent of any locale.

/// General form: up to 15 significant digits, no trailing zeros, no exponent between 1e-15 and
/// 1e15, no negative zero. Throws Overflow when the value is not finite. Money shows all of its
/// digits.
std::string generalNumber(double value);
std::string generalNumber(Currency value);
std::string generalNumber(Discount value);

/// Pattern "0.00": two decimals, halves away from zero; what rounds to zero has no sign.
std::string twoDecimals(Currency value);
/// In place of a figure that does not fit, on papers and in files.
// untranslated: printed and exported
inline constexpr const char* kDoesNotFit = "超出范围";
/// As twoDecimals, or that the sum does not fit.
std::string sumText(const std::optional<Currency>& sum);
/// Pattern "0.0": one decimal, the same way.
std::string oneDecimal(Currency value);

/// A number as typed: see Decimal::parse. Nothing when the text is not a number.
std::optional<double> parseNumber(std::string_view text);
/// A typed number converted to a whole number that fits T, halves to the even neighbour
/// (2.5 gives 2, 3.5 gives 4). Nothing when the text is no number or does not fit.
std::optional<std::int32_t> parseWhole32(std::string_view text);
std::optional<std::int16_t> parseWhole16(std::string_view text);

/// A quantity rounded to six decimals, so that sums of weighed goods stay exact on screen and
/// putting back what was taken restores the stock exactly.
double roundedQuantity(double quantity);

/// Rounded to a whole number, halves to the even neighbour. Throws Overflow when it does not fit.
std::int64_t wholeHalfEven(double value);
