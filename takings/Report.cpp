#include "takings/Report.h"

#include "base/NumberText.h"
#include "base/Rounding.h"
#include "base/Utf8.h"

namespace {

std::string soundText(std::string_view text) {
  std::string sound;
  while (!text.empty()) {
    const Utf8Character first = firstUtf8(text);
    sound.append(first.broken ? "\uFFFD" : text.substr(0, first.length));
    text.remove_prefix(first.length);
  }
  return sound;
}

}  // namespace

std::string cellText(const ReportCell& cell, ReportColumn::Kind kind) {
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  if (const auto* count = std::get_if<std::int64_t>(&cell)) return std::to_string(*count);
  if (const auto* quantity = std::get_if<double>(&cell)) return generalNumber(*quantity);
  if (const auto* money = std::get_if<Currency>(&cell)) {
    return kind == ReportColumn::Kind::kShare ? oneDecimal(*money) + "%" : twoDecimals(*money);
  }
  return {};
}

void makeTextsSound(ReportSection& section) {
  for (auto& row : section.rows) {
    for (ReportCell& cell : row)
      if (auto* text = std::get_if<std::string>(&cell)) *text = soundText(*text);
  }
}

ReportCell shareOf(Currency part, Currency whole) {
  constexpr Wide kHundred = Wide{100} * Currency::kScale;
  const Wide sign = whole < Currency() ? -1 : 1;
  if (whole.isZero()) return {};
  const Wide share = dividedHalfAway(sign * part.scaled() * kHundred, sign * whole.scaled());
  if (!fits<std::int64_t>(share)) return {};
  return Currency::fromScaled(static_cast<std::int64_t>(share));
}
