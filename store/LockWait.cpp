#include "store/LockWait.h"

#include <chrono>
#include <thread>

#include "store/Engine.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

int tryAgain(void*, int tries) {
  thread_local steady_clock::time_point begin;
  if (tries == 0) begin = steady_clock::now();
  if (steady_clock::now() - begin > 2s) return 0;
  std::this_thread::sleep_for(3ms);
  return 1;
}

}  // namespace

void waitForLocks(sqlite3* engine) {
  sqlite3_busy_handler(engine, &tryAgain, nullptr);
}
