#include "saleslib/CardNumber.h"

#include "base/Text.h"

namespace {

constexpr std::string_view kSentinels = ";?";
constexpr std::string_view kSentinelsAndLetters = ";?abcdefgijklmnopqrstuvwxyz";

std::string without(std::string_view typed, std::string_view dropped) {
  std::string number;
  for (const char character : halfWidth(typed)) {
    if (dropped.find(character) == std::string_view::npos) number += character;
  }
  return trimmed(number);
}

}  // namespace

std::string memberNumber(std::string_view typed) {
  return without(typed, kSentinels);
}

std::string storedCardNumber(std::string_view typed) {
  return without(typed, kSentinelsAndLetters);
}
