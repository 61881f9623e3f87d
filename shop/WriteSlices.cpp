#include "shop/WriteSlices.h"

#include <algorithm>
#include <thread>

#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr int kFewestRows = 50, kMostRows = 2'000;
constexpr auto kShortSlice = 50ms, kLongSlice = 100ms;
constexpr auto kPause = 15ms;    // some tries of one who waits (store/LockWait.h)
constexpr int kLongLog = 1'000;  // pages; a pause is as good for copying them

}  // namespace

void WriteSlices::run(const std::function<bool(int rows)>& slice,
                      const std::function<bool()>& goOn) {
  bool isMore = true;
  while (isMore && goOn()) {
    const auto begin = steady_clock::now();
    Transaction transaction(connection_);
    const auto held = steady_clock::now();
    isMore = slice(rows_);
    transaction.commit();
    adapt(steady_clock::now() - held);
    if (company_ == Company::kOthers && steady_clock::now() - begin > kPause) pause();
  }
}

void WriteSlices::adapt(steady_clock::duration taken) {
  if (taken < kShortSlice) rows_ = std::min(kMostRows, rows_ * 3 / 2);
  if (taken > kLongSlice) rows_ = std::max(kFewestRows, rows_ / 2);
}

void WriteSlices::pause() {
  const auto end = steady_clock::now() + kPause;
  if (connection_.logPages() > kLongLog) connection_.checkpoint();
  std::this_thread::sleep_until(end);
}
