// Kills the till at random instants of a busy day and holds its books against the journal.
//   tests_kill [--long | --kills N] [--seed N]
#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <stdexcept>

#include "InstalledTill.h"
#include "ProofOptions.h"
#include "demo/DisplayTube.h"
#include "driver/TillDriver.h"
#include "kill/Day.h"
#include "kill/Killer.h"
#include "saleslib/ClsSysParam.h"
#include "store/Connection.h"

namespace {

using std::chrono::microseconds;

class KillTest {
 public:
  explicit KillTest(const ProofOptions& options)
      : options_(options),
        random_(options.seed),
        journal_(Ledger::read(*shopWithEveryTender())),
        day_(journal_, Goods(*till_.open()), options.seed, [this] { stepConfirmed(); }) {}

  void run() try {
    for (; kills_ < options_.count; ++kills_) runUntilKilled();
    till_.writeSettings({});
    TillDriver last(till_.program());
    openShop(last);
    day_.close();
  } catch (const std::runtime_error& failure) {
    throw std::runtime_error("after " + std::to_string(kills_) + " kills: " + failure.what());
  }

  void print() {
    using enum Journal::Outcome;
    const Ledger& books = journal_.confirmed();
    const auto byPhone = std::ranges::count_if(
        books.bills, [](const auto& bill) { return !bill.second.slip.empty(); });
    std::printf(
        "%d kills: %d between two steps, %d in a step that was then done (%d of them shown before, "
        "%d completed at the start), %d in one that was not, %d between the two writes of a "
        "top-up; %zu bills (%td by telephone), %d returns, %d top-ups, %d shifts; lost: 0\n",
        kills_, outcomes_[kNothingOpen], outcomes_[kTaken], takenShown_, completed_,
        outcomes_[kNotTaken], outcomes_[kHalfTaken], books.bills.size(), byPhone, books.returns,
        books.topUps, books.shifts);
  }

 private:
  std::unique_ptr<Connection> shopWithEveryTender() const {
    auto shop = till_.open();
    ClsSysParam parameters;
    parameters.Conn(*shop);
    for (const char* name : {"PhonePay", "Shifts"}) {
      if (!parameters.set(name, "1").empty()) throw std::logic_error(name);
    }
    return shop;
  }

  // Some strike while the till starts, some at any moment of the day, some within the milliseconds
  // after a key that changes the books, some as these are written, between two writes that belong
  // together, and some when the drawer opens: the customer has paid by then, and the bill is not
  // stored yet.
  void aim(Killer& killer) {
    killer_ = &killer;
    const auto where = random_() % 8;
    confirmationsLeft_ = where < 3 ? 0 : 1 + static_cast<int>(random_() % 8);
    if (where == 0) {
      killer.strikeIn(microseconds(random_() % 600000));
    } else if (where < 3) {
      killer.strikeIn(microseconds(400000 + random_() % 1500000));
    }
  }
  void stepConfirmed() {
    drawerBefore_ = till_.drawerBytes();  // counting opened it before
    if (confirmationsLeft_ == 0 || --confirmationsLeft_ > 0) return;
    const auto where = random_() % 5;
    if (where == 0) {
      const auto root = random_() % 123;  // sooner rather than later, within 15 ms
      killer_->strikeIn(microseconds(root * root));
    } else if (where < 3) {
      killer_->strikeAtWrite(till_.dataFile().string() + "-wal", microseconds(random_() % 200));
    } else {
      killer_->strikeAtWrite(till_.drawer(), microseconds(random_() % 4 * (random_() % 300)));
    }
  }

  void runUntilKilled() {
    DisplayTube display;
    till_.writeSettings(display.path());
    TillDriver till(till_.program());
    Killer killer(till.process());
    try {
      aim(killer);
      openShop(till);
      for (;;) {
        drawerBefore_ = till_.drawerBytes();
        day_.step();
      }
    } catch (const std::runtime_error&) {
      if (!killer.struck()) throw;
    }
  }

  /// Up to an empty bill, and the books hold. The drawer opens only for a bill that is paid for.
  void openShop(TillDriver& till) {
    const bool hasShift = day_.logIn(till);
    const bool shown = journal_.isOpen() && till_.drawerBytes() > drawerBefore_;
    const Journal::Outcome outcome = journal_.judge(Ledger::read(*till_.open()), shown);
    ++outcomes_[outcome];
    if (outcome == Journal::Outcome::kTaken && shown) ++takenShown_;
    const std::string told = day_.takeTold();
    if (outcome == Journal::Outcome::kHalfTaken) {
      require(told, day_.lastTopUp());
    } else if (!told.empty()) {
      ++completed_;  // which only the bill that was being settled can have been
      require(told, day_.settledBill());
    }
    if (!hasShift) day_.beginShift();
  }
  static void require(const std::string& told, const std::string& named) {
    if (told.find(named) == std::string::npos)
      throw std::runtime_error("not told of " + named + " but: " + told);
  }

  ProofOptions options_;
  std::mt19937 random_;
  InstalledTill till_;
  Journal journal_;
  Day day_;
  Killer* killer_ = nullptr;
  int confirmationsLeft_ = 0;
  std::uintmax_t drawerBefore_ = 0;
  // What became of the steps that were open when the till was killed.
  int kills_ = 0, takenShown_ = 0, completed_ = 0;
  std::map<Journal::Outcome, int> outcomes_;
};

}  // namespace

int main(int argc, char** argv) {
  try {
    KillTest test(ProofOptions::parse(argc, argv, "--kills", 30, 500));
    test.run();
    test.print();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kill test: %s\n", failure.what());
    return 1;
  }
}
