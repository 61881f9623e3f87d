#include "store/Literal.h"

#include "base/NumberText.h"
#include "base/Text.h"

std::string quotedText(std::string_view text) {
  return "'" + replaced(std::string(text), "'", "''") + "'";
}

std::string likeFragment(std::string_view fragment) {
  return quotedText("%" + std::string(fragment) + "%");
}

std::string literal(double number) {
  return generalNumber(number);
}
std::string literal(Currency money) {
  return generalNumber(money);
}
std::string literal(std::int64_t number) {
  return std::to_string(number);
}
std::string literal(const DateTime& time) {
  return accessLiteral(time);
}
