#include <fstream>
#include <iostream>
#include <set>

#include "BookFaults.h"
#include "FaultyTill.h"
#include "LongRun.h"
#include "PowerCut.h"
#include "platform/PseudoTerminal.h"

namespace fs = std::filesystem;
using enum PowerCut::Unsynced;

/// A bill that the recorded session settled.
struct Settled {
  std::int32_t bill = 0;
  std::size_t asked = 0;         ///< events before the cashier confirmed the payment
  std::int64_t seenOutside = 0;  ///< at that moment
  std::string figures;           ///< of the bill's row
  std::string after;             ///< the shop's balance
};

class PowerCutTest : public FaultyTill {
 protected:
  PowerCutTest() {
    setParameter("Journal", "1");
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

  /// Of a settled bill; "" when it is none.
  static std::string billFigures(Connection& books, std::int32_t bill) {
    return value(books,
                 "printf('%s|%s|%s|%s|%s|%s|%s|%s|%s|%s|%s', sell_time, operator_id, quantity, "
                 "goods_amount, amount, cash, favorable, bank_card, card_pay, card_no, member_id) "
                 "from sell where state = 1 and id = " +
                     std::to_string(bill));
  }
  /// What a shop would count after closing time.
  static std::string balance(Connection& books) {
    return value(books,
                 "group_concat(spbm || ' ' || quantity) || (select ', card ' || card || "
                 "', purchases ' || total_spent || ', points ' || points from member) || ', ' || "
                 "(select count(*) from sellProducts) || ' lines, settled ' || "
                 "(select count(*) from sell where state = 1) || ', open ' || "
                 "(select count(*) from sell where state <> 1) from stock");
  }

  /// Bytes on paper, in the drawer and on the display, and messages to the cashier.
  std::int64_t seenOutside() {
    shownBytes += line.received().size();
    std::size_t seen = shownBytes + till.messages.size();
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
  void sellOne(Tender tender, bool member) {
    Settled& sale = sales.emplace_back();
    sale.bill = bill().BillNo();
    sell(tender, member, [&] {
      sale.asked = disk.events.size();
      sale.seenOutside = seenOutside();
    });
    sale.figures = billFigures(*pos.gConn, sale.bill);
    sale.after = balance(*pos.gConn);
    EXPECT_NE(sale.figures, "");
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
      EXPECT_GT(opened.sale().bill()->BillNo(), storedCount == 0 ? 0 : sales[storedCount - 1].bill);
    }
    return completed;
  }
  void compareBooks(Connection& books, std::size_t passed) {
    const auto isThere = [&books](const Settled& sale) {
      return billFigures(books, sale.bill) == sale.figures;
    };
    storedCount =
        static_cast<std::size_t>(std::ranges::find_if_not(sales, isThere) - sales.begin());
    for (std::size_t i = 0; i < sales.size(); ++i) {
      const bool handedOut = passed >= sales[i].asked && outsideAt(passed) > sales[i].seenOutside;
      EXPECT_TRUE(i < storedCount || !handedOut)
          << "the customer has the receipt of bill " << sales[i].bill;
      EXPECT_TRUE(i >= storedCount || passed > sales[i].asked)
          << "nobody confirmed bill " << sales[i].bill;
    }
    EXPECT_EQ(balance(books), storedCount == 0 ? before : sales[storedCount - 1].after);
    EXPECT_EQ(bookFaults(books, pos.clock), "");
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
        if (completed && fate == kLost && (cutAgain.insert(storedCount).second || longRun))
          cutTheStartToo(files, power.passed());
        if (HasFailure()) return;
      }
    } while (power.next());
    EXPECT_EQ(cutAgain.size(), sales.size()) << "every bill was completed once";
  }

  PseudoTerminal line;
  std::size_t shownBytes = 0;
  TemporaryFolder reopened;
  std::mt19937 random{20261122};
  std::vector<Settled> sales;
  std::vector<DiskEvent> recorded;  ///< of the session that sold
  std::string before;               ///< the shop's balance
  std::size_t storedCount = 0;      ///< so many bills of `sales`
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
  }
  disk.record(false);
  recorded = std::move(disk.events);
  EXPECT_EQ(till.messages.size(), 2U) << "the two balances of the card";
  cutEverywhere(atStart);
  if (HasFailure()) return;
  std::cout << "power cuts: " << cuts << " after " << recorded.size() << " writes and syncs, bills "
            << sales.size() << ", lost: 0\n";
}
