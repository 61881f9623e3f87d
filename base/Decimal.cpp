#include "base/Decimal.h"

#include <cmath>
#include <string>

#include "base/Rounding.h"
#include "base/SignificantDigits.h"
#include "base/Text.h"

namespace {

constexpr int kMostDecimals = 18;
constexpr double kFifteenDigits = 1e15;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Appends a digit; false when the number gets too large. Counts downwards because the smallest
/// 64-bit number has no positive counterpart.
bool append(std::int64_t& negative, char digit) {
  return !__builtin_mul_overflow(negative, std::int64_t{10}, &negative) &&
         !__builtin_sub_overflow(negative, std::int64_t{digit - '0'}, &negative);
}

/// Digits with at most one point, at least one digit, into minus their value.
std::optional<Decimal> negativeOf(std::string_view text) {
  const std::size_t point = text.find('.');
  if (text.empty() || text == ".") return std::nullopt;
  // Zeros at the end of the decimals say nothing and must not use up the digits.
  if (point != std::string_view::npos) text = text.substr(0, text.find_last_not_of('0') + 1);
  Decimal result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i == point) continue;
    if (!isDigit(text[i]) || !append(result.mantissa, text[i])) return std::nullopt;
    if (i > point && ++result.decimals > kMostDecimals) return std::nullopt;
  }
  return result;
}

}  // namespace

std::optional<Decimal> Decimal::parse(std::string_view text) {
  const std::string folded = trimmed(halfWidth(text));
  std::string_view rest = folded;
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  std::optional<Decimal> result = negativeOf(rest);
  if (!result || negative) return result;
  if (__builtin_sub_overflow(std::int64_t{0}, result->mantissa, &result->mantissa)) {
    return std::nullopt;
  }
  return result;
}

std::optional<Decimal> Decimal::fromDouble(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  // Most quantities are whole, and each key press adds up those of the whole bill.
  if (std::abs(value) < kFifteenDigits && value == std::trunc(value)) {
    return Decimal{static_cast<std::int64_t>(value), 0};
  }
  const SignificantDigits shown(value);
  Wide mantissa = 0;
  for (char c : shown.digits()) mantissa = mantissa * 10 + (c - '0');
  int decimals = static_cast<int>(shown.digits().size()) - 1 - shown.exponent();
  if (decimals < 0) {
    if (shown.exponent() > kMostDecimals) return std::nullopt;
    mantissa *= powerOfTen(-decimals);
    decimals = 0;
  }
  if (decimals > kMostDecimals) {
    const int dropped = decimals - kMostDecimals;
    mantissa = dropped > kMostZeros ? 0 : dividedHalfAway(mantissa, powerOfTen(dropped));
    decimals = kMostDecimals;
  }
  if (!fits<std::int64_t>(mantissa)) return std::nullopt;
  const auto magnitude = static_cast<std::int64_t>(mantissa);
  return Decimal{shown.negative() ? -magnitude : magnitude, decimals};
}
