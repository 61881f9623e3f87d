// Figures and dates as typed: what is understood reads back the same from its own text.
#include <string>

#include "Target.h"
#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/Decimal.h"
#include "base/Discount.h"
#include "base/Failure.h"
#include "base/NumberText.h"

namespace {

void money(std::string_view text) {
  const auto amount = Currency::parse(text);
  if (!amount) return;
  ensure(Currency::parse(generalNumber(*amount)) == amount, "money reads back");
  try {
    const Currency fen = roundedToFen(*amount);
    const std::string shown = twoDecimals(*amount);
    ensure(Currency::parse(shown) == fen, "two decimals are the rounded money");
    const std::size_t point = shown.size() - 3;
    ensure(shown.find_last_not_of("0123456789") == point && shown[point] == '.' && point > 0 &&
               shown[point - 1] >= '0',
           "people see yuan and fen");
    static_cast<void>(oneDecimal(*amount));
    static_cast<void>(wholeHalfEven(*amount));
    static_cast<void>(pointsAfter(*amount, 1, 0));
    static_cast<void>(lineAmount(*amount, 3, Discount(0.9)));
  } catch (const Overflow&) {
    return;  // said, never a wrong sum
  }
}

void number(std::string_view text) {
  static_cast<void>(parseWhole32(text));
  static_cast<void>(parseWhole16(text));
  const auto value = parseNumber(text);
  if (!value) return;
  const std::string shown = generalNumber(*value);
  const bool hasExponent = shown.find_first_of("eE") != std::string::npos;  // beyond 1e15, 1e-15
  const auto again = parseNumber(shown);
  ensure(hasExponent || (again && generalNumber(*again) == shown), "a number reads back");
  static_cast<void>(roundedQuantity(*value));
  static_cast<void>(Discount(*value));
}

void date(std::string_view text) {
  const auto time = parseDateTime(text);
  if (!time) return;
  ensure(parseDateTime(storedText(*time)) == time, "a stored time reads back");
  ensure(parseDateTime(generalText(*time)) == time, "a shown time reads back");
  ensure(parseAccessLiteral(accessLiteral(*time)) == time, "a literal time reads back");
  ensure(plusDays(plusDays(time->date, 1), -1) <= time->date, "a day later and back");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = textOf(data, size);
  money(text);
  number(text);
  date(text);
  static_cast<void>(parseAccessLiteral(text));
  return 0;
}
