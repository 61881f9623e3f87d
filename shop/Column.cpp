#include "shop/Column.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"

namespace {

constexpr std::size_t kLongestText = 255;

std::optional<Value> textOf(std::string text, bool mayBeEmpty) {
  if (text.size() > kLongestText && characters(text) > kLongestText) return std::nullopt;
  if ((text.empty() && !mayBeEmpty) || hasControlCharacter(text)) return std::nullopt;
  return toValue(std::move(text));
}

// A spreadsheet that takes a barcode for a number writes 6.99012E+12: the code is lost, and the
// file must not bring it into the shop.
bool isScientific(std::string_view code) {
  const std::size_t exponent = code.find_first_of("Ee");
  return exponent != std::string_view::npos && code.find("E+") == exponent &&
         code.find_first_not_of("0123456789.") == exponent;
}

std::optional<Value> codeOf(std::string_view field) {
  std::string code = trimmed(field);
  if (isScientific(code)) return std::nullopt;
  return textOf(std::move(code), false);
}

std::optional<Value> moneyOf(const std::string& field, bool mayBeNegative) {
  const std::optional<Currency> money = Currency::parse(field);
  if (!money || (!mayBeNegative && *money < Currency())) return std::nullopt;
  return toValue(*money);
}

std::optional<Value> factorOf(const std::string& field) {
  const std::optional<double> factor = parseNumber(field);
  if (!factor || *factor <= 0 || *factor > 1) return std::nullopt;
  return toValue(Discount(*factor));
}

std::optional<Value> quantityOf(const std::string& field) {
  const std::optional<double> quantity = parseNumber(field);
  if (!quantity || !std::isfinite(*quantity)) return std::nullopt;
  return toValue(roundedQuantity(*quantity));
}

// Typed whole numbers are rounded elsewhere; in a file 1.5 of something whole is a mistake.
std::optional<Value> wholeOf(const std::string& field, std::int64_t least, std::int64_t most) {
  const std::optional<double> number = parseNumber(field);
  if (!number || *number != std::floor(*number)) return std::nullopt;
  if (*number < static_cast<double>(least) || *number > static_cast<double>(most)) {
    return std::nullopt;
  }
  return toValue(static_cast<std::int64_t>(*number));
}

std::optional<Value> dateOf(const std::string& field) {
  const std::optional<DateTime> time = parseDateTime(field);
  if (!time) return std::nullopt;
  return toValue(*time);
}

}  // namespace

std::optional<Value> Column::valueOf(const std::string& field) const {
  if (kind == Kind::kText) return textOf(field, true);
  if (field.empty()) return fallback;
  switch (kind) {
    case Kind::kCode:
      return codeOf(field);
    case Kind::kName:
    case Kind::kText:
      return textOf(field, false);
    case Kind::kPrice:
      return moneyOf(field, false);
    case Kind::kMoney:
      return moneyOf(field, true);
    case Kind::kFactor:
      return factorOf(field);
    case Kind::kQuantity:
      return quantityOf(field);
    case Kind::kRatio:
      return wholeOf(field, 1, INT16_MAX);
    case Kind::kCount:
      return wholeOf(field, INT16_MIN, INT16_MAX);
    case Kind::kKey:
      return wholeOf(field, 1, INT32_MAX);
    case Kind::kFlag:
      return wholeOf(field, 0, 1);
    case Kind::kDate:
      return dateOf(field);
  }
  return std::nullopt;
}

std::string Column::expectation() const {
  switch (kind) {
    case Kind::kCode:
      return Words::tr(
          "应是编码，不能空着，不超过 255 个字，不能有换行等控制字符，也不能是科学计数法");
    case Kind::kName:
      return Words::tr("应是文字，不能空着，不超过 255 个字，也不能有换行等控制字符");
    case Kind::kText:
      return Words::tr("应是文字，不超过 255 个字，也不能有换行等控制字符");
    case Kind::kPrice:
      return Words::tr("应是不小于 0 的金额");
    case Kind::kMoney:
      return Words::tr("应是金额");
    case Kind::kFactor:
      return Words::tr("应是大于 0、不超过 1 的折扣系数（九折写 0.9）");
    case Kind::kQuantity:
      return Words::tr("应是数量");
    case Kind::kRatio:
      return Words::tr("应是 1 到 32767 的整数");
    case Kind::kCount:
      return Words::tr("应是 -32768 到 32767 的整数");
    case Kind::kKey:
      return Words::tr("应是大于 0 的整数");
    case Kind::kFlag:
      return Words::tr("应是 0 或 1");
    case Kind::kDate:
      return Words::tr("应是日期，例如 2026-11-22 或 2026-11-22 09:05:03");
  }
  return "";
}
