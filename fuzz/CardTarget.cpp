// Card numbers as a reader types them: between ";" and "?", by an input method that may be on.
#include <algorithm>
#include <string>

#include "Target.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "saleslib/CardNumber.h"

namespace {

/// What the keyboard gives always is; in broken text, taking a mark out can make a new character.
bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character first = firstUtf8(text);
    if (first.broken) return false;
    text.remove_prefix(first.length);
  }
  return true;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view typed = textOf(data, size);
  const std::string member = memberNumber(typed), card = storedCardNumber(typed);
  ensure(member.find_first_of(";?") == std::string::npos, "no mark of the track is left");
  if (!isUtf8(typed)) return 0;
  ensure(memberNumber(member) == member && storedCardNumber(card) == card, "cleaned once");
  ensure(storedCardNumber(member) == card, "a top-up finds what a bill finds");
  ensure(std::none_of(card.begin(), card.end(),
                      [](char each) { return each >= 'a' && each <= 'z' && each != 'h'; }),
         "no letter of the reader is left");
  ensure(memberNumber(halfWidth(typed)) == member, "full-width figures are figures");
  return 0;
}
