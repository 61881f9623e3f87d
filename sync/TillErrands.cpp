#include "sync/TillErrands.h"

#include "saleslib/HeldBasket.h"
#include "store/StoreError.h"

TillErrands::TillErrands(Connection& connection, ServerLine& line, int till)
    : connection_(connection), calls_(line, till) {
  line.listenTo("till_" + calls_.till());
}

// The line is shared with the upload, which finds out when it is broken.
bool TillErrands::step(Moment now) {
  const bool isCalled = calls_.line().wasCalled();
  if (!isCalled && now - looked_ < kBetweenLooks) return false;
  looked_ = now;
  const bool isDue = now - beaten_ >= kHeartbeat;
  const std::vector<std::int64_t> held = heldNumbers(connection_);
  if (!isDue && !isCalled && held == told_) return false;
  fault_.clear();
  BillCalls calls(calls_, ServerLine::kPatience);
  if ((isDue || held != told_) && !tellHeld(calls, held)) return false;
  bool isDone = runErrands(calls);
  if (!isDue) return isDone;
  beaten_ = now;
  return followReturns(calls) || isDone;
}

/// False when nobody knows whether that came: then nothing else is asked either.
bool TillErrands::tellHeld(BillCalls& calls, const std::vector<std::int64_t>& held) {
  const ServerAnswer answer = calls.hold(heldBaskets(connection_));
  if (answer.kind == ServerAnswer::kUnknown) return false;
  if (!answer.isDone()) fault_ = answer.text;
  told_ = held;
  return true;
}

// One that cannot be done now keeps no other from being done.
template <class Errand>
bool TillErrands::did(const Errand& errand) {
  try {
    errand();
    return true;
  } catch (const StoreBusy&) {
    throw;
  } catch (const StoreError& failure) {
    fault_ = failure.what();
    return false;
  }
}

bool TillErrands::runErrands(BillCalls& calls) {
  const BillCalls::Errands errands = calls.errands();
  bool isDone = false;
  for (const BillCalls::Errand& errand : errands.all) {
    isDone |= did([&] {
      if (errand.isWanted) {
        releaseHeld(connection_, errand.bill, errand.key, errand.till);
      } else {
        receiveHeld(connection_, errand.key, errand.basket);
      }
    });
  }
  return isDone;
}

bool TillErrands::followReturns(BillCalls& calls) {
  const BillCalls::Returned returned = calls.returnedElsewhere();
  bool isDone = false;
  for (const ReturnElsewhere& each : returned.all)
    isDone |= did([&] { followReturn(connection_, each); });
  return isDone;
}
