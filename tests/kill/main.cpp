// Kills the till at random instants of a busy day and holds its books against the journal.
//   tests_kill [--long | --kills N] [--seed N]
#include <cstdio>
#include <map>
#include <random>
#include <stdexcept>

#include "InstalledTill.h"
#include "ProofOptions.h"
#include "base/NumberText.h"
#include "demo/DisplayTube.h"
#include "driver/TillDriver.h"
#include "kill/Day.h"
#include "kill/Killer.h"
#include "store/Connection.h"

namespace {

using std::chrono::microseconds;

/// What became of the steps that were open when the till was killed.
struct Figures {
  int kills = 0, opened = 0, takenShown = 0, completed = 0;
  std::map<Journal::Outcome, int> outcomes;
};

class KillTest {
 public:
  explicit KillTest(const ProofOptions& options)
      : options_(options),
        random_(options.seed),
        journal_(Ledger::read(*till_.open())),
        day_(journal_, Goods(*till_.open()), options.seed, [this] { stepConfirmed(); }) {}

  Figures run() try {
    while (figures_.kills < options_.count) {
      runUntilKilled();
      ++figures_.kills;
    }
    TillDriver last(startFolder({}));
    openShop(last);
    day_.close(last);
    return figures_;
  } catch (const std::runtime_error& failure) {
    throw std::runtime_error("after " + std::to_string(figures_.kills) +
                             " kills: " + failure.what());
  }
  const Ledger& books() const { return journal_.confirmed(); }

 private:
  const std::filesystem::path& startFolder(const std::string& display) {
    till_.writeSettings(display);
    program_ = till_.program();
    return program_;
  }

  // Some strike while the till starts, some at any moment of the day, some within the milliseconds
  // after a key that changes the books, some as these are written, between two writes that belong
  // together, and some when the drawer opens: the customer has paid by then, and the bill is not
  // stored yet.
  void aim(Killer& killer) {
    confirmationsLeft_ = 0;
    switch (random_() % 8) {
      case 0:
        killer.strikeIn(microseconds(random_() % 600000));
        break;
      case 1:
      case 2:
        killer.strikeIn(microseconds(400000 + random_() % 1500000));
        break;
      default:
        confirmationsLeft_ = 1 + static_cast<int>(random_() % 8);
    }
  }

  void stepConfirmed() {
    if (confirmationsLeft_ == 0 || --confirmationsLeft_ > 0) return;
    switch (random_() % 5) {
      case 0: {
        const auto root = random_() % 123;  // sooner rather than later, within 15 ms
        killer_->strikeIn(microseconds(root * root));
        break;
      }
      case 1:
      case 2:
        killer_->strikeAtWrite(till_.dataFile().string() + "-wal", microseconds(random_() % 200));
        break;
      default:
        killer_->strikeAtWrite(till_.drawer(), microseconds(random_() % 4 * (random_() % 300)));
    }
  }

  void runUntilKilled() {
    DisplayTube display;
    TillDriver till(startFolder(display.path()));
    Killer killer(till.process());
    killer_ = &killer;
    try {
      aim(killer);
      openShop(till);
      for (;;) {
        drawerBefore_ = till_.drawerBytes();
        day_.step(till);
      }
    } catch (const std::runtime_error&) {
      if (!killer.struck()) throw;
    }
  }

  /// Up to an empty bill, and the books hold. The drawer opens only for a bill that is paid for.
  void openShop(TillDriver& till) {
    day_.logIn(till);
    const bool shown = journal_.isOpen() && till_.drawerBytes() > drawerBefore_;
    const Journal::Outcome outcome = journal_.judge(Ledger::read(*till_.open()), shown);
    ++figures_.outcomes[outcome];
    if (outcome == Journal::Outcome::kTaken && shown) ++figures_.takenShown;
    const std::string told = day_.takeTold();
    if (outcome == Journal::Outcome::kHalfTaken) {
      requireLastTopUpIn(told);
    } else if (!told.empty()) {
      ++figures_.completed;
      requireLastBillIn(told);
    }
    ++figures_.opened;
  }

  /// Only the bill that was being settled can have been completed.
  void requireLastBillIn(const std::string& told) const {
    const std::string number = std::to_string(day_.settledBill());
    if (told.find("流水号 " + number + "，") != std::string::npos) return;
    throw std::runtime_error("told of another bill than the last: " + told);
  }

  void requireLastTopUpIn(const std::string& told) const {
    const Ledger::TopUp& topUp = books().topUps.back();
    const std::string named = "卡号 " + topUp.card + "，付款 " + twoDecimals(topUp.paid) +
                              "，充值 " + twoDecimals(topUp.credited);
    if (told.find(named) != std::string::npos) return;
    throw std::runtime_error("not told of the record without a balance, " + named +
                             " but: " + told);
  }

  ProofOptions options_;
  std::mt19937 random_;
  InstalledTill till_;
  std::filesystem::path program_;
  Journal journal_;
  Day day_;
  Killer* killer_ = nullptr;
  Figures figures_;
  int confirmationsLeft_ = 0;
  std::uintmax_t drawerBefore_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  try {
    KillTest test(ProofOptions::parse(argc, argv, "--kills", 30, 500));
    Figures figures = test.run();
    using enum Journal::Outcome;
    std::printf(
        "%d kills, %d restarts to an empty bill: %d between two steps, %d in a step that was then "
        "done (%d of them shown before, %d completed at the start), %d in one that was not, %d "
        "between the two writes of a top-up; %zu bills, %zu returns, %zu top-ups; lost: 0\n",
        figures.kills, figures.opened, figures.outcomes[kNothingOpen], figures.outcomes[kTaken],
        figures.takenShown, figures.completed, figures.outcomes[kNotTaken],
        figures.outcomes[kHalfTaken], test.books().bills.size(), test.books().returns.size(),
        test.books().topUps.size());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kill test: %s\n", failure.what());
    return 1;
  }
}
