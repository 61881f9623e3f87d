#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/Discount.h"

/// One value of the data file: empty (Null), a whole number, a number or a text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Values as columns hold them: money and factors as plain decimal numbers, dates as storedText.
Value toValue(std::monostate empty);
Value toValue(bool flag);
Value toValue(int number);
Value toValue(std::int64_t number);
Value toValue(double number);
Value toValue(std::string text);
Value toValue(const char* text);
Value toValue(Currency money);
Value toValue(Discount factor);
Value toValue(const DateTime& time);
/// Nothing is Null.
template <class T>
Value toValue(const std::optional<T>& value) {
  return value ? toValue(*value) : Value();
}
