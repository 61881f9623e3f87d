#include "PowerCut.h"

#include <QFile>
#include <fstream>
#include <iostream>
#include <set>

#include "BookFaults.h"
#include "FaultyTill.h"
#include "LongRun.h"
#include "platform/PseudoTerminal.h"

namespace {

namespace fs = std::filesystem;

/// A bill that the recorded session settled.
struct Settled {
  std::int32_t bill;
  std::size_t asked;         ///< events before the cashier confirmed the payment
  std::int64_t seenOutside;  ///< at that moment
  std::size_t linesSoFar;    ///< of this bill and all before it
  std::string figures;       ///< of the bill's row
  std::string after;         ///< the shop's balance
};

}  // namespace

class PowerCutTest : public FaultyTill {
 protected:
  PowerCutTest() {
    ports.isReal = true;
    pos.gPosSet.PPort = "LPT1";
    pos.gPosSet.MBPort = "LPT2";
    pos.gPosSet.CVProt = "COM1";
    static_cast<void>(pos.configIni.write("Ports", "LPT2", folder.file("drawer")));
    static_cast<void>(pos.configIni.write("Ports", "COM1", line.path()));
    EXPECT_EQ(pos.gSysParam.set("PointUnit", "1"), "");
    pos.gConn->runScript("insert into stock values ('2001', 40)");
    disk.outside = [this] { return seenOutside(); };
    fs::create_directories(reopened.path() / "data");
    std::ofstream(reopened.file("Config.ini")) << "[Database]\nPath=data/shop.db\n";
  }

  /// Of a settled bill; "" when it is none.
  static std::string billFigures(Connection& books, std::int32_t bill) {
    return value(books,
                 "(select printf('%s|%s|%s|%s|%s|%s|%s|%s|%s|%s|%s', sell_time, operator_id, "
                 "quantity, goods_amount, amount, cash, favorable, bank_card, card_pay, card_no, "
                 "member_id) from sell where state = 1 and id = " +
                     std::to_string(bill) + ")");
  }

  /// Bytes on paper, in the drawer and on the display, and messages to the cashier.
  std::int64_t seenOutside() {
    shownBytes += line.received().size();
    std::error_code missing;
    std::int64_t seen = static_cast<std::int64_t>(shownBytes + till.messages.size());
    for (const char* device : {"lpt1", "drawer"}) {
      const auto size = fs::file_size(folder.file(device), missing);
      if (!missing) seen += static_cast<std::int64_t>(size);
    }
    return seen;
  }

  PowerCut::Files filesNow() const {
    PowerCut::Files files;
    for (const auto& entry : fs::directory_iterator(folder.path() / "data")) {
      const std::string path = entry.path();
      if (path.ends_with(".db") || path.ends_with("-wal")) files[path] = fileBytes(path);
    }
    return files;
  }

  void sell(Tender tender, bool member) {
    ringGoods();
    if (member) attachMember();
    Settled sale{bill().BillNo(), 0, 0, 0, {}, {}};
    settle(tender, [&] {
      sale.asked = disk.events.size();
      sale.seenOutside = seenOutside();
    });
    sale.linesSoFar = std::stoul(lines());
    sale.figures = billFigures(*pos.gConn, sale.bill);
    sale.after = balance(*pos.gConn);
    EXPECT_NE(sale.figures, "");
    sales.push_back(sale);
  }

  std::int64_t outsideAt(std::size_t passed) {
    return passed < recorded.size() ? recorded[passed].outside : seenOutside();
  }

  /// The till starts on what the cut left, twice, and the books are compared. Whether the first
  /// start completed a bill.
  bool compare(const PowerCut::Files& files, std::size_t passed) {
    ++cuts;
    putBack(files);
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
      EXPECT_GT(opened.sale().bill()->BillNo(), storedCount == 0 ? 0 : sales[storedCount - 1].bill);
    }
    return completed;
  }

  /// The power goes again, at every step of the start that completes a bill.
  void cutTheStartToo(const PowerCut::Files& files, std::size_t passed) {
    disk.events.clear();
    disk.record(true);
    compare(files, passed);
    disk.record(false);
    const std::vector<DiskEvent> start = std::move(disk.events);
    PowerCut::Files atStart;
    for (const auto& [path, bytes] : files) atStart[dataPath(path)] = bytes;
    for (PowerCut power(start, atStart); power.next() && !HasFailure();) {
      SCOPED_TRACE("and again after event " + std::to_string(power.passed()) + " of the start");
      for (const auto fate : {PowerCut::Unsynced::kLost, PowerCut::Unsynced::kKept}) {
        compare(power.files(fate, random), passed);
      }
    }
  }

  std::string dataPath(const std::string& path) const {
    return reopened.path() / "data" / fs::path(path).filename();
  }
  void putBack(const PowerCut::Files& files) {
    const fs::path data = reopened.path() / "data";
    for (const auto& entry : fs::directory_iterator(data)) fs::remove(entry.path());
    for (const auto& [path, bytes] : files) {
      std::ofstream(dataPath(path), std::ios::binary) << bytes;
    }
  }

  void compareBooks(Connection& books, std::size_t passed) {
    storedCount = 0;
    while (storedCount < sales.size() &&
           billFigures(books, sales[storedCount].bill) == sales[storedCount].figures) {
      ++storedCount;
    }
    for (std::size_t i = 0; i < sales.size(); ++i) {
      const bool handedOut = passed >= sales[i].asked && outsideAt(passed) > sales[i].seenOutside;
      EXPECT_TRUE(i < storedCount || !handedOut)
          << "the customer has the receipt of bill " << sales[i].bill;
      EXPECT_TRUE(i >= storedCount || passed > sales[i].asked)
          << "nobody confirmed bill " << sales[i].bill;
    }
    const Settled* last = storedCount == 0 ? nullptr : &sales[storedCount - 1];
    EXPECT_EQ(balance(books), last == nullptr ? before : last->after);
    EXPECT_EQ(value(books, "(select count(*) from sell where state = 1)"),
              std::to_string(storedCount));
    EXPECT_EQ(value(books, "(select count(*) from sell)"), std::to_string(storedCount + 1));
    EXPECT_EQ(value(books, "(select count(*) from sellProducts)"),
              std::to_string(last == nullptr ? 0 : last->linesSoFar));
    EXPECT_EQ(bookFaults(books, pos.clock), "");
  }

  void cutEverywhere(const PowerCut::Files& atStart) {
    const int draws = longRun ? 40 : 2;
    std::set<std::size_t> cutAgain;  ///< bills whose completion was cut, too
    PowerCut power(recorded, atStart);
    do {
      std::vector<PowerCut::Unsynced> fates = {PowerCut::Unsynced::kLost};
      if (power.anyUnsynced()) {
        fates.push_back(PowerCut::Unsynced::kKept);
        fates.insert(fates.end(), draws, PowerCut::Unsynced::kSome);
      }
      for (const PowerCut::Unsynced fate : fates) {
        SCOPED_TRACE("cut after event " + std::to_string(power.passed()) + " of " +
                     std::to_string(recorded.size()) + ", fate of the unsynced writes " +
                     std::to_string(static_cast<int>(fate)));
        const PowerCut::Files files = power.files(fate, random);
        const bool completed = compare(files, power.passed());
        if (completed && fate == PowerCut::Unsynced::kLost &&
            (cutAgain.insert(storedCount).second || longRun)) {
          cutTheStartToo(files, power.passed());
        }
        if (HasFailure()) return;
      }
    } while (power.next());
    EXPECT_EQ(cutAgain.size(), sales.size()) << "every bill was completed once";
    std::cout << "power cuts: " << cuts << " after " << recorded.size()
              << " writes and syncs, bills " << sales.size() << ", lost: 0\n";
  }

  PseudoTerminal line;
  std::size_t shownBytes = 0;
  TemporaryFolder reopened;
  std::mt19937 random{20261122};
  std::vector<Settled> sales;
  std::vector<DiskEvent> recorded;  ///< of the session that sold
  std::string before;
  std::size_t storedCount = 0;
  int cuts = 0;
};

TEST_F(PowerCutTest, everyCutLeavesBooksThatBalance) {
  open();
  pos.gConn->checkpoint();
  before = balance(*pos.gConn);
  disk.record(true);
  const PowerCut::Files atStart = filesNow();
  sell(Tender::kCash, false);
  sell(Tender::kCard, false);
  pos.gConn->checkpoint();  // the log begins anew with the next write
  sell(Tender::kCash, true);
  sell(Tender::kCard, true);
  disk.record(false);
  recorded = std::move(disk.events);
  EXPECT_EQ(till.messages.size(), 2U) << "the two balances of the card";
  cutEverywhere(atStart);
}
