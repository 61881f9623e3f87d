// Card numbers as a reader types them: between ";" and "?", by an input method that may be on.
#include <algorithm>
#include <string>

#include "Target.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "saleslib/CardNumber.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view typed = textOf(data, size);
  const std::string member = memberNumber(typed), card = storedCardNumber(typed);
  ensure(member.find_first_of(";?") == std::string::npos, "no mark of the track is left");
  ensure(memberNumber(member) == member && storedCardNumber(card) == card, "cleaned once");
  ensure(storedCardNumber(member) == card, "a top-up finds what a bill finds");
  ensure(std::none_of(card.begin(), card.end(),
                      [](char each) { return each >= 'a' && each <= 'z' && each != 'h'; }),
         "no letter of the reader is left");
  ensure(memberNumber(halfWidth(typed)) == member, "full-width figures are figures");
  return 0;
}
