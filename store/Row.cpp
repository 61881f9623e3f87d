#include "store/Row.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "base/Words.h"
#include "store/StoreError.h"

namespace {

[[noreturn]] void refuse(std::string_view column, const std::string& wanted) {
  throw StoreError(Words::tr("数据文件里“%1”的内容不是%2。", column, wanted));
}

bool isWhole(double number) {
  return std::abs(number) < 0x1p63 && std::trunc(number) == number;
}

// What toValue(Currency) stored comes back without going through text.
std::optional<Currency> currencyOf(double number) {
  const double scaled = std::nearbyint(number * Currency::kScale);
  if (std::abs(scaled) < 0x1p53 && scaled / Currency::kScale == number) {
    return Currency::fromScaled(static_cast<std::int64_t>(scaled));
  }
  return Currency::parse(generalNumber(number));
}

std::optional<Currency> currencyOf(std::int64_t yuan) {
  constexpr std::int64_t kMostYuan = std::numeric_limits<std::int64_t>::max() / Currency::kScale;
  if (yuan > kMostYuan || yuan < -kMostYuan) return std::nullopt;
  return Currency::fromScaled(yuan * Currency::kScale);
}

}  // namespace

std::string Row::text(std::string_view column) const {
  Value value = field(column);
  if (auto* text = std::get_if<std::string>(&value)) return std::move(*text);
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return generalNumber(*number);
  return {};
}

std::optional<Currency> Row::currency(std::string_view column) const {
  const Value value = field(column);
  std::optional<Currency> money;
  if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) money = currencyOf(*whole);
  if (const auto* number = std::get_if<double>(&value)) money = currencyOf(*number);
  if (const auto* text = std::get_if<std::string>(&value)) money = Currency::parse(*text);
  if (!money) refuse(column, Words::tr("金额"));
  return money;
}

std::optional<double> Row::number(std::string_view column) const {
  const Value value = field(column);
  if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  const std::optional<double> read = parseNumber(std::get<std::string>(value));
  if (!read) refuse(column, Words::tr("数字"));
  return read;
}

std::optional<std::int64_t> Row::whole(std::string_view column) const {
  const Value value = field(column);
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  const std::optional<double> read = number(column);
  if (!read) return std::nullopt;
  if (!isWhole(*read)) refuse(column, Words::tr("整数"));
  return static_cast<std::int64_t>(*read);
}

std::optional<DateTime> Row::dateTime(std::string_view column) const {
  const Value value = field(column);
  if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
  const auto* text = std::get_if<std::string>(&value);
  const std::optional<DateTime> read = text ? parseDateTime(*text) : std::nullopt;
  if (!read) refuse(column, Words::tr("日期"));
  return read;
}

bool Row::isNull(std::string_view column) const {
  return std::holds_alternative<std::monostate>(field(column));
}
