#include "store/LockWait.h"

#include "store/Engine.h"

namespace {

// Slept by the engine's own file layer, as all its waits are, which a test may replace.
int tryAgain(void*, int tries) {
  constexpr int kPauseMs = 3, kLongestMs = 2000;
  if (tries * kPauseMs >= kLongestMs) return 0;
  sqlite3_sleep(kPauseMs);
  return 1;
}

}  // namespace

void waitForLocks(sqlite3* engine) {
  sqlite3_busy_handler(engine, &tryAgain, nullptr);
}
