#include <fstream>
#include <iostream>
#include <set>

#include "FaultyTill.h"
#include "LongRun.h"
#include "PowerCut.h"
#include "platform/PseudoTerminal.h"

namespace fs = std::filesystem;
using enum PowerCut::Unsynced;

constexpr std::size_t kBills = 4;
constexpr Currency kCash = Currency::fromScaled(100000);

/// What the recorded session did: settled a bill, or a step of the shift.
struct RecordedDeed {
  std::string name;
  std::int32_t lastBill = 0;     ///< the last settled one after it
  std::size_t asked = 0;         ///< events before the cashier confirmed it
  std::int64_t seenOutside = 0;  ///< at that moment
  std::string after = {};        ///< the shop's balance
};

class PowerCutTest : public FaultyTill {
 protected:
  PowerCutTest() {
    ports.isReal = true;
    pos.gPosSet.PPort = "LPT1";
    pos.gPosSet.MBPort = "LPT2";
    pos.gPosSet.CVProt = "COM1";
    EXPECT_TRUE(pos.configIni.write(
        {{"Ports", "LPT2", folder.file("drawer")}, {"Ports", "COM1", line.path()}}));
    disk.outside = [this] { return seenOutside(); };
    fs::create_directories(reopened.path() / "data");
    std::ofstream(reopened.file("Config.ini")) << "[Database]\nPath=data/shop.db\n";
  }

  /// What a shop would count after closing time.
  static std::string balance(Connection& books) {
    std::string rows;
    for (const char* query :
         {"select spbm || ' ' || quantity as v from stock",
          "select 'card ' || card || ', purchases ' || total_spent || ', points ' || points as v "
          "from member",
          "select count(*) || ' lines' as v from sellProducts",
          "select 'open bills: ' || count(*) as v from sell where state <> 1",
          "select printf('bill %s|%s|%s|%s|%s|%s|%s|%s|%s|%s|%s|%s|%s', id, sell_time, "
          "operator_id, "
          "quantity, goods_amount, amount, cash, favorable, bank_card, card_pay, card_no, "
          "member_id, shift) as v from sell where state = 1",
          "select 'shift ' || id || ', closed ' || coalesce(closed, 'not') as v from shift",
          "select 'cash moved: ' || count(*) as v from shift_cash",
          "select 'counted: ' || count(*) || ', figures ' || (select count(*) from shift_figure) "
          "as v from shift_count"}) {
      Rows found = books.query(query);
      while (found.next()) rows += found.text("v") + "\n";
    }
    return rows;
  }

  /// Bytes on paper, in the drawer and on the display, and messages to the cashier.
  std::int64_t seenOutside() {
    shownBytes += line.received().size();
    std::size_t seen = shownBytes + till.messages.size() + stepsShown;
    for (const char* device : {"lpt1", "drawer"})
      if (fs::exists(folder.file(device))) seen += fs::file_size(folder.file(device));
    return static_cast<std::int64_t>(seen);
  }
  std::int64_t outsideAt(std::size_t passed) {
    return passed < recorded.size() ? recorded[passed].outside : seenOutside();
  }

  PowerCut::Files filesNow() const {
    PowerCut::Files files;
    for (const auto& entry : fs::directory_iterator(folder.path() / "data")) {
      const std::string path = entry.path();
      if (path.ends_with(".db") || path.ends_with("-wal")) files[path] = fileBytes(path);
    }
    return files;
  }
  void noteAsked() {
    deeds.back().asked = disk.events.size();
    deeds.back().seenOutside = seenOutside();
  }
  void sellOne(Tender tender, bool member) {
    const std::int32_t number = bill().BillNo();
    deeds.push_back({"bill " + std::to_string(number), number});
    sell(tender, member, [this] { noteAsked(); });
    deeds.back().after = balance(*pos.gConn);
  }
  void step(const char* name, bool (*work)(ShiftBooks& shifts)) {
    deeds.push_back({name, deeds.empty() ? 0 : deeds.back().lastBill});
    noteAsked();
    ShiftBooks shifts = pos.shiftBooks();
    EXPECT_TRUE(work(shifts)) << name;
    ++stepsShown;
    deeds.back().after = balance(*pos.gConn);
  }

  std::string pathAgain(const std::string& path) const {
    return reopened.path() / "data" / fs::path(path).filename();
  }
  /// The till starts on what the cut left, twice, and the books are compared. Whether the first
  /// start completed a bill.
  bool startOn(const PowerCut::Files& files, std::size_t passed) {
    ++cuts;
    for (const auto& entry : fs::directory_iterator(reopened.path() / "data")) fs::remove(entry);
    for (const auto& [path, bytes] : files)
      std::ofstream(pathAgain(path), std::ios::binary) << bytes;
    posMod again{reopened.path(), [this] { return now; }};
    EXPECT_EQ(again.OpenDataStore(), "");
    if (!again.gConn) return false;
    again.start();
    again.gOperator = pos.gOperator;
    bool completed = false;
    for (const bool first : {true, false}) {
      TillScreen told;
      SaleSession opened(again, told, {});
      EXPECT_TRUE(opened.open());
      if (first) completed = !told.messages.empty();
      EXPECT_TRUE(first || told.messages.empty()) << "told once: " << told.messages.front();
      compareBooks(*again.gConn, passed);
      EXPECT_GT(opened.sale().bill()->BillNo(), done == 0 ? 0 : deeds[done - 1].lastBill);
    }
    return completed;
  }
  void compareBooks(Connection& books, std::size_t passed) {
    const std::string found = balance(books);
    done = deeds.size();
    while (done > 0 && deeds[done - 1].after != found) --done;
    EXPECT_TRUE(done > 0 || found == before) << "no deed leaves the shop with\n" << found;
    for (std::size_t i = 0; i < deeds.size(); ++i) {
      const bool shown = passed >= deeds[i].asked && outsideAt(passed) > deeds[i].seenOutside;
      EXPECT_TRUE(i < done || !shown) << "lost, although it had been shown: " << deeds[i].name;
      EXPECT_TRUE(i >= done || passed > deeds[i].asked) << "nobody confirmed " << deeds[i].name;
    }
    EXPECT_EQ(::bookFaults(books, pos.clock), "");
  }

  /// The power goes again, at every step of the start that completes a bill.
  void cutTheStartToo(const PowerCut::Files& files, std::size_t passed) {
    disk.events.clear();
    disk.record(true);
    startOn(files, passed);
    disk.record(false);
    const std::vector<DiskEvent> start = std::move(disk.events);
    PowerCut::Files atStart;
    for (const auto& [path, bytes] : files) atStart[pathAgain(path)] = bytes;
    for (PowerCut power(start, atStart); power.next() && !HasFailure();) {
      SCOPED_TRACE("and again after event " + std::to_string(power.passed()) + " of the start");
      for (const auto fate : {kLost, kKept}) startOn(power.files(fate, random), passed);
    }
  }
  void cutEverywhere(const PowerCut::Files& atStart) {
    std::set<std::size_t> cutAgain;  ///< bills whose completion was cut, too
    PowerCut power(recorded, atStart);
    do {
      std::vector<PowerCut::Unsynced> fates = {kLost};
      if (power.anyUnsynced()) {
        fates.resize(longRun ? 42 : 4, kSome);
        fates[1] = kKept;
      }
      for (const PowerCut::Unsynced fate : fates) {
        SCOPED_TRACE("cut after event " + std::to_string(power.passed()) + " of " +
                     std::to_string(recorded.size()) + ", fate of the unsynced writes " +
                     std::to_string(static_cast<int>(fate)));
        const PowerCut::Files files = power.files(fate, random);
        const bool completed = startOn(files, power.passed());
        if (completed && fate == kLost && (cutAgain.insert(done).second || longRun))
          cutTheStartToo(files, power.passed());
        if (HasFailure()) return;
      }
    } while (power.next());
    EXPECT_EQ(cutAgain.size(), kBills) << "every bill was completed once";
  }

  PseudoTerminal line;
  std::size_t shownBytes = 0, stepsShown = 0;
  TemporaryFolder reopened;
  std::mt19937 random{20261122};
  std::vector<RecordedDeed> deeds;
  std::vector<DiskEvent> recorded;  ///< of the session that sold
  std::string before;               ///< the shop's balance
  std::size_t done = 0;             ///< so many of `deeds`
  int cuts = 0;
};

TEST_F(PowerCutTest, EveryCutLeavesBooksThatBalance) {
  open();
  pos.gConn->checkpoint();
  before = balance(*pos.gConn);
  disk.record(true);
  const PowerCut::Files atStart = filesNow();
  for (const bool member : {false, true}) {
    pos.gConn->checkpoint();  // the log begins anew with the next write
    for (const Tender tender : {Tender::kCash, Tender::kStoredCard}) sellOne(tender, member);
    step("cash put in", [](ShiftBooks& shifts) { return shifts.move(kCash, "零钱").has_value(); });
    step("the drawer counted", [](ShiftBooks& shifts) { return shifts.count({{1, 2}}); });
    step("a shift closed", [](ShiftBooks& shifts) { return shifts.close(); });
    step("a shift opened", [](ShiftBooks& shifts) { return shifts.open(kCash); });
  }
  disk.record(false);
  recorded = std::move(disk.events);
  EXPECT_EQ(till.messages.size(), 2U) << "the two balances of the card";
  cutEverywhere(atStart);
  if (HasFailure()) return;
  std::cout << "power cuts: " << cuts << " after " << recorded.size() << " writes and syncs, bills "
            << kBills << ", steps of shifts " << stepsShown << ", lost: 0\n";
}
