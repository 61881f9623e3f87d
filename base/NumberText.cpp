#include "base/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/Decimal.h"
#include "base/Failure.h"
#include "base/Rounding.h"
#include "base/SignificantDigits.h"
#include "base/Words.h"

namespace {

constexpr int kLargestPlainExponent = 15;

/// value / 10^decimals with exactly that many decimals, at least one.
std::string fixedPoint(std::int64_t value, std::size_t decimals) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const std::size_t digits = text.size() - sign;
  if (digits <= decimals) text.insert(sign, decimals + 1 - digits, '0');
  text.insert(text.size() - decimals, 1, '.');
  return text;
}

/// Without an exponent: "1230", "12.3", "0.00123".
std::string plain(std::string_view digits, int exponent) {
  std::string text(digits);
  if (exponent < 0) return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + text;
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (text.size() <= whole) return text.append(whole - text.size(), '0');
  return text.insert(whole, 1, '.');
}

/// With an exponent: "1.23E+20".
std::string scientific(std::string_view digits, int exponent) {
  std::string text(digits);
  if (text.size() > 1) text.insert(1, 1, '.');
  return text + (exponent < 0 ? "E-" : "E+") + std::to_string(std::abs(exponent));
}

template <typename Whole>
std::optional<Whole> parseWhole(std::string_view text) {
  const std::optional<Decimal> number = Decimal::parse(text);
  if (!number) return std::nullopt;
  const Wide whole = dividedHalfEven(number->mantissa, powerOfTen(number->decimals));
  if (!fits<Whole>(whole)) return std::nullopt;
  return static_cast<Whole>(whole);
}

}  // namespace

std::string generalNumber(double value) {
  if (!std::isfinite(value)) throw Overflow(Words::tr("数值超出了可以计算的范围。"));
  const SignificantDigits shown(value);
  const std::string text = std::abs(shown.exponent()) <= kLargestPlainExponent
                               ? plain(shown.digits(), shown.exponent())
                               : scientific(shown.digits(), shown.exponent());
  return shown.negative() ? "-" + text : text;
}

std::string generalNumber(Currency value) {
  std::string text = fixedPoint(value.scaled(), 4);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string generalNumber(Discount value) {
  return generalNumber(value.factor());
}

std::string twoDecimals(Currency value) {
  return fixedPoint(static_cast<std::int64_t>(dividedHalfAway(value.scaled(), 100)), 2);
}

std::string sumText(const std::optional<Currency>& sum) {
  return sum ? twoDecimals(*sum) : kDoesNotFit;
}

std::string oneDecimal(Currency value) {
  return fixedPoint(static_cast<std::int64_t>(dividedHalfAway(value.scaled(), 1000)), 1);
}

std::optional<double> parseNumber(std::string_view text) {
  const std::optional<Decimal> number = Decimal::parse(text);
  if (!number) return std::nullopt;
  // By way of "123e-2": a division would round twice when the digits exceed a double's.
  std::array<char, 32> form{};
  char* end = std::to_chars(form.data(), form.data() + 20, number->mantissa).ptr;
  *end++ = 'e';
  end = std::to_chars(end, form.data() + form.size(), -number->decimals).ptr;
  double value = 0;
  std::from_chars(form.data(), end, value);
  return value;
}

std::optional<std::int32_t> parseWhole32(std::string_view text) {
  return parseWhole<std::int32_t>(text);
}

std::optional<std::int16_t> parseWhole16(std::string_view text) {
  return parseWhole<std::int16_t>(text);
}

double roundedQuantity(double quantity) {
  constexpr double kPerUnit = 1e6;
  // Beyond this a double has no six decimals left to round; infinity stays what it is.
  constexpr double kLargest = 9e9;
  if (!(std::fabs(quantity) < kLargest)) return quantity;
  return std::round(quantity * kPerUnit) / kPerUnit + 0.0;  // + 0.0: no negative zero
}

std::int64_t wholeHalfEven(double value) {
  constexpr double kLimit = 9223372036854775808.0;  // 2^63
  if (!(value >= -kLimit && value < kLimit))
    throw Overflow(Words::tr("数值超出了可以计算的范围。"));
  return static_cast<std::int64_t>(std::nearbyint(value));
}
