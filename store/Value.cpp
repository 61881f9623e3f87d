#include "store/Value.h"

#include <utility>

Value toValue(std::monostate empty) {
  return empty;
}
Value toValue(bool flag) {
  return std::int64_t{flag ? 1 : 0};
}
Value toValue(int number) {
  return std::int64_t{number};
}
Value toValue(std::int64_t number) {
  return number;
}
Value toValue(double number) {
  return number;
}
Value toValue(std::string text) {
  return Value(std::move(text));
}
Value toValue(const char* text) {
  return std::string(text);
}

// The quotient is the double nearest to the decimal number, which is what a typed 12.34 is too.
Value toValue(Currency money) {
  if (money.scaled() % Currency::kScale == 0) return money.scaled() / Currency::kScale;
  return static_cast<double>(money.scaled()) / static_cast<double>(Currency::kScale);
}

Value toValue(Discount factor) {
  return factor.factor();
}
Value toValue(const DateTime& time) {
  return storedText(time);
}
