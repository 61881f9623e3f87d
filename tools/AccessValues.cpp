#include "tools/AccessValues.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "base/Words.h"

namespace {

using Kind = TargetColumn::Kind;

constexpr std::size_t kLongestText = 255;

/// As people write it; nothing for a number that is none.
std::optional<std::string> written(const AccessValue& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "1" : "0";
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* money = std::get_if<Currency>(&value)) return generalNumber(*money);
  if (const auto* time = std::get_if<DateTime>(&value)) return generalText(*time);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  const auto* real = std::get_if<double>(&value);
  if (real == nullptr || !std::isfinite(*real)) return std::nullopt;
  return generalNumber(*real);
}

std::string withoutControls(const std::string& text) {
  std::string cleaned;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view character = rest.substr(0, firstUtf8(rest).length);
    cleaned += hasControlCharacter(character) ? " " : character;
    rest.remove_prefix(character.size());
  }
  return cleaned;
}

TakenValue textOf(std::string text) {
  std::string change;
  if (hasControlCharacter(text)) {
    text = withoutControls(text);
    change = Words::tr("里的换行等控制字符改成了空格");
  }
  if (const std::size_t length = characters(text); length > kLongestText) {
    text = firstCharacters(text, kLongestText);
    const std::string cut = Words::tr("有 %1 个字，只带来前 255 个", length);
    change = change.empty() ? cut : Words::tr("%1，%2", change, cut);
  }
  return {std::move(text), std::move(change)};
}

std::optional<Value> moneyOf(const AccessValue& value, const std::string& text) {
  if (const auto* money = std::get_if<Currency>(&value)) return toValue(*money);
  const std::optional<Currency> money = Currency::parse(text);
  if (!money) return std::nullopt;
  return toValue(*money);
}

std::optional<Value> numberOf(const AccessValue& value, const std::string& text) {
  if (const auto* real = std::get_if<double>(&value)) return toValue(*real);
  const std::optional<double> number = parseNumber(text);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return toValue(*number);
}

std::optional<Value> wholeOf(const std::string& text, Kind kind) {
  const std::optional<double> number = parseNumber(text);
  if (!number || *number != std::floor(*number)) return std::nullopt;
  if (std::abs(*number) > INT32_MAX) return std::nullopt;
  if (kind == Kind::kFlag && *number == -1) return toValue(1);
  return toValue(static_cast<std::int64_t>(*number));
}

std::optional<Value> dateOf(const AccessValue& value, const std::string& text) {
  if (const auto* time = std::get_if<DateTime>(&value)) return toValue(*time);
  const std::optional<DateTime> time = parseDateTime(text);
  if (!time || !std::holds_alternative<std::string>(value)) return std::nullopt;
  return toValue(*time);
}

std::optional<Value> valueOf(const AccessValue& value, const std::string& text, Kind kind) {
  if (kind == Kind::kDate) return dateOf(value, text);
  if (std::holds_alternative<DateTime>(value)) return std::nullopt;
  if (kind == Kind::kMoney) return moneyOf(value, text);
  return kind == Kind::kNumber ? numberOf(value, text) : wholeOf(text, kind);
}

}  // namespace

std::optional<TakenValue> takenValue(const AccessValue& value, Kind kind) {
  if (std::holds_alternative<std::monostate>(value)) return TakenValue{};
  std::optional<std::string> text = written(value);
  if (!text) return std::nullopt;
  if (kind == Kind::kText) return textOf(*std::move(text));
  if (trimmed(*text).empty()) return TakenValue{};
  std::optional<Value> taken = valueOf(value, *text, kind);
  if (!taken) return std::nullopt;
  return TakenValue{*std::move(taken), ""};
}

std::string shownValue(const AccessValue& value) {
  constexpr std::size_t kLongestShown = 40;
  const std::string text = withoutControls(written(value).value_or(Words::tr("不是数字")));
  if (text.empty()) return Words::tr("空着");
  return "“" + firstCharacters(text, kLongestShown) +
         (characters(text) > kLongestShown ? "……”" : "”");
}

std::string kindName(Kind kind) {
  switch (kind) {
    case Kind::kText:
      return Words::tr("文字");
    case Kind::kMoney:
      return Words::tr("金额");
    case Kind::kNumber:
      return Words::tr("数字");
    case Kind::kWhole:
    case Kind::kFlag:
      return Words::tr("整数");
    case Kind::kDate:
      return Words::tr("日期");
  }
  return "";
}
