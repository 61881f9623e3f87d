#include "saleslib/CardNumber.h"

#include <algorithm>

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

/// They only lose characters on the way, so that equal ones stand side by side.
std::vector<std::string> eachOnce(std::vector<std::string> numbers) {
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

}  // namespace

std::string memberNumber(std::string_view typed) {
  return without(typed, kSentinels);
}

std::string storedCardNumber(std::string_view typed) {
  return without(typed, kSentinelsAndLetters);
}

std::vector<std::string> memberNumbers(std::string_view typed) {
  return eachOnce({std::string(typed), memberNumber(typed)});
}

std::vector<std::string> storedCardNumbers(std::string_view typed) {
  return eachOnce({std::string(typed), memberNumber(typed), storedCardNumber(typed)});
}

std::vector<std::string> payingCardNumbers(std::string_view typed) {
  const bool isTrack = halfWidth(typed).find_first_of(kSentinels) != std::string::npos;
  return isTrack ? storedCardNumbers(typed) : memberNumbers(typed);
}
