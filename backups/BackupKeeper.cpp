#include "backups/BackupKeeper.h"

#include <algorithm>
#include <utility>

#include "backups/BackupFolder.h"
#include "store/Connection.h"

namespace {

std::optional<int> ageOf(const std::vector<Date>& dates, const Date& today) {
  const auto last = std::ranges::find_if(dates, [&](const Date& date) { return date <= today; });
  return last == dates.end() ? std::nullopt : std::optional(daysBetween(*last, today));
}

/// When the first bill was made; today where there is none.
Date firstBillsDay(Connection& shop, const Date& today) {
  Rows first = shop.query("select sell_time from sell order by id limit 1");
  const auto time = first.next() ? first.dateTime("sell_time") : std::nullopt;
  return time ? time->date : today;
}

}  // namespace

BackupKeeper::BackupKeeper(Connection& shop, std::filesystem::path medium, Clock clock,
                           Seconds first, Seconds pause)
    : shop_(shop),
      medium_(std::move(medium)),
      opened_(FileIdentity::of(shop.source().path)),
      clock_(std::move(clock)),
      firstDay_(firstBillsDay(shop, clock_().date)),
      pause_(pause),
      next_(std::chrono::steady_clock::now() + first) {
  state_.here = BackupFolder::beside(shop.source().path).dates();
}

BackupKeeper::~BackupKeeper() {
  stop();
}

// A run that was stopped has nothing to tell.
bool BackupKeeper::look(std::chrono::milliseconds patience) {
  if (result_.valid()) {
    if (result_.wait_for(patience) != std::future_status::ready) return false;
    state_ = result_.get();
    thread_.join();
    return true;
  }
  if (isDue()) start(false);
  return false;
}

bool BackupKeeper::isDue() const {
  return std::chrono::steady_clock::now() >= next_;
}

void BackupKeeper::makeAnew() {
  stop();
  start(true);
}

// The thread has the sale's own priority: one of a lower would be put aside on a busy machine, at
// times while it holds a lock of the engine, and the sale would wait for it (236 to 700 ms seen).
// In a file that has lost its name the sale goes on, and what lies under the name is not its own.
void BackupKeeper::start(bool anew) {
  next_ = std::chrono::steady_clock::now() + pause_;
  if (!shop_.fileFault().empty()) return;
  flags_ = std::make_shared<BackupFlags>();
  std::packaged_task<BackupResult()> task(
      [order = BackupOrder{shop_.source(), opened_, medium_, clock_().date, anew}, flags = flags_] {
        return runBackup(order, *flags);
      });
  result_ = task.get_future();
  thread_ = std::thread(std::move(task));
}

// As long as the run uses the data file, the program must not give up its lock on it.
void BackupKeeper::stop() {
  constexpr Seconds kMediumsTime(2);
  if (!result_.valid()) return;
  flags_->stop = true;
  const bool ended = result_.wait_for(kMediumsTime) == std::future_status::ready;
  if (ended || !flags_->hasLeftShop) {
    thread_.join();
  } else {
    thread_.detach();
  }
  result_ = {};
}

std::optional<int> BackupKeeper::age() const {
  const Date today = clock_().date;
  const std::optional<int> here = ageOf(state_.here, today);
  if (medium_.empty() || !here || state_.onMedium.empty()) return here;
  return std::max(*here, ageOf(state_.onMedium, today).value_or(*here));
}

int BackupKeeper::daysAtRisk() const {
  return age().value_or(daysBetween(firstDay_, clock_().date));
}
