// Lets a monkey loose on the till and looks at the books whenever it has ended the program.
//   tests_monkey [--long | --events N] [--seed N]
#include <stdlib.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "InstalledTill.h"
#include "ProofOptions.h"
#include "base/Failure.h"
#include "driver/TillDriver.h"
#include "monkey/Figures.h"
#include "saleslib/ClsSysParam.h"
#include "store/Connection.h"

namespace fs = std::filesystem;

namespace {

class MonkeyTest {
 public:
  explicit MonkeyTest(const ProofOptions& options)
      : options_(options), home_(till_.folder() / "home"), figures_(*till_.open()) {
    fs::create_directories(home_);
    writeWords();
    // What the toolkit keeps for its user, it keeps here.
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
      setenv(name, home_.c_str(), 1);
    fs::current_path(home_);
  }
  ~MonkeyTest() { fs::current_path("/"); }

  void run() try {
    while (events_ < options_.count) {
      clearAway();
      workInShifts(starts_ % 2 == 0);
      TillDriver till(till_.program());
      till.waitFor("frmMenu");
      ++starts_;
      const int asked = options_.count - events_;
      const int done = till.monkey(options_.seed + starts_, asked, till_.folder() / "words");
      events_ += done;
      const int code = done < asked ? till.waitForEnd() : 0;
      if (code != 0) throw std::runtime_error("the till ended with " + std::to_string(code));
      till.kill();
      figures_.check(*till_.open());
    }
  } catch (const std::runtime_error& failure) {
    throw std::runtime_error("start " + std::to_string(starts_) + ", with " +
                             std::to_string(events_) + " events counted: " + failure.what());
  }

  void print() const {
    const auto shop = till_.open();
    Rows rows = shop->query(
        "select (select count(*) from sell where state = 1) || ' bills, ' || "
        "(select count(*) from sellProducts) || ' lines, ' || "
        "(select count(*) from un_sell) || ' returns, ' || "
        "(select count(*) from member) || ' members, ' || "
        "(select count(*) from cardStored) || ' top-ups, ' || "
        "(select count(closed) || ' of ' || count(*) from shift) || ' shifts closed, ' || "
        "(select count(*) from fact where approver is not null) || ' of ' || "
        "(select count(*) from fact) || ' entries of the journal approved by somebody' as made");
    rows.next();
    std::printf("%d events, %u starts of the till; %s; faults: 0\n", events_, starts_,
                rows.text("made").c_str());
  }

 private:
  void writeWords() const {
    std::ofstream words(till_.folder() / "words");
    const auto shop = till_.open();
    Rows each = shop->query(
        "select sptm as word, ggxh as more from (select * from tmda order by id limit 60) "
        "union all select bh, password from member");
    while (each.next()) words << each.text("word") << '\n' << each.text("more") << '\n';
  }

  void workInShifts(bool on) const {
    const auto shop = till_.open();
    ClsSysParam parameters;
    parameters.Conn(*shop);
    ensure(parameters.set("Shifts", on ? "1" : "0").empty(), "a shop may work in shifts or not");
  }

  /// The settings as they were, and what was printed and exported gone.
  void clearAway() {
    for (const fs::path& made : {till_.folder() / "printed", till_.program() / "Exports"})
      fs::remove_all(made);
    fs::remove_all(home_);
    fs::create_directories(home_);
    fs::current_path(home_);
    till_.writeSettings({});
  }

  ProofOptions options_;
  InstalledTill till_;
  fs::path home_;
  Figures figures_;
  int events_ = 0;
  unsigned starts_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  try {
    MonkeyTest test(ProofOptions::parse(argc, argv, "--events", 20000, 1000000));
    test.run();
    test.print();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "monkey: %s\n", failure.what());
    return 1;
  }
}
