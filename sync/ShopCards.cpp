#include "sync/ShopCards.h"

CardAuthority::Answer ShopCards::charge(const Charge& charge) {
  return line_.ask(
      [&charge](ShopCalls& calls, LiveLine::Milliseconds patience) {
        return calls.charge(charge, patience);
      },
      [](const Answer& answer) { return answer.kind != Answer::kNone; });
}
