#include "sync/TillErrands.h"

#include "saleslib/HeldBasket.h"

// The line is shared with the upload, which finds out when it is broken.
bool TillErrands::step(Moment now) {
  if (now - looked_ < kBetweenLooks) return false;
  looked_ = now;
  const bool isDue = now - beaten_ >= kHeartbeat;
  const std::vector<std::int64_t> held = heldNumbers(connection_);
  if (!isDue && held.empty() && told_.empty()) return false;
  BillCalls calls(calls_, ServerLine::kPatience);
  if (isDue || held != told_) {
    if (!calls.hold(heldBaskets(connection_))) return false;
    told_ = held;
  }
  bool isDone = runErrands(calls);
  if (!isDue) return isDone;
  beaten_ = now;
  return followReturns(calls) || isDone;
}

bool TillErrands::runErrands(BillCalls& calls) {
  const BillCalls::Errands errands = calls.errands();
  for (const BillCalls::Errand& errand : errands.all) {
    if (errand.isWanted) {
      releaseHeld(connection_, errand.bill, errand.key, errand.till);
    } else {
      receiveHeld(connection_, errand.key, errand.basket);
    }
  }
  return !errands.all.empty();
}

bool TillErrands::followReturns(BillCalls& calls) {
  const BillCalls::Returned returned = calls.returnedElsewhere();
  for (const ReturnElsewhere& each : returned.all) followReturn(connection_, each);
  return !returned.all.empty();
}
