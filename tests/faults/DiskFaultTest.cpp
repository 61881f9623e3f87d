#include <iostream>
#include <memory>

#include "FaultyTill.h"
#include "LongRun.h"
#include "base/NumberText.h"
#include "saleslib/ReturnBooks.h"
#include "store/StoreError.h"

constexpr std::pair<const char*, Disk::Fault> kFaults[] = {{"full", Disk::Fault::kFull},
                                                           {"broken", Disk::Fault::kBroken},
                                                           {"read-only", Disk::Fault::kReadOnly},
                                                           {"locked", Disk::Fault::kLocked}};
constexpr Currency kDue = Currency::fromScaled(70000);  // of the bill that is rung

constexpr std::int64_t kCallsPerShop = 20;

/// What came of the faults so far.
struct Tally {
  int faults = 0, reentered = 0, completed = 0, steps = 0;
};

/// A till in a shop of its own for a few faults: examining what all faults left behind each of them
/// would take most of the time.
class DiskTill : public FaultyTill {
 public:
  DiskTill(Disk::Fault kind, std::int64_t duration, Tally& sum)
      : fault(kind), failing(duration), tally(sum) {
    till.asked = [this] {  // the cashier is told why and removes the cause, or gives up
      if (till.answersYes.value_or(true)) disk.mend();
    };
    open();
  }

  /// The cashier rings, settles and goes on to the next bill. What was told is what counts.
  void sellOne(Tender tender, bool member) {
    const auto last = session.sale().last();
    const std::int32_t number = bill().BillNo();
    const std::size_t told = till.messages.size();
    sell(tender, member);
    const bool done = session.sale().last() != last;
    if (done) settledBills.push_back(number);
    EXPECT_TRUE(done || till.messages.size() > told) << "the cashier is told";
    // What the cashier is told of a bill that was charged and not stored: enter it again, the card
    // and the amount.
    for (std::size_t i = told; i < till.messages.size(); ++i) {
      if (till.messages[i].find("请重新录入本单") == std::string::npos) continue;
      ++tally.reentered;
      if (tender == Tender::kCash) continue;
      EXPECT_THAT(till.messages[i],
                  testing::HasSubstr("储值卡 8001 已扣款 " + generalNumber(kDue)));
      chargedInVain += kDue;
    }
  }

  /// The bills that the cashier was shown as done are stored, no other one is, and stock, card and
  /// member agree with them.
  void compare() {
    Connection& books = *pos.gConn;
    std::string done;
    for (const std::int32_t bill : settledBills) done += std::to_string(bill) + ",";
    EXPECT_EQ(value(books, "group_concat(id || ',', '') from sell where state = 1"), done);
    const std::string rows = value(
        books,
        "(select group_concat(1000000 - coalesce((select sum(amount * ratio) from sellProducts "
        "where bm = spbm), 0) = quantity) from stock where spbm in ('1001', '2001')) || ' ' || "
        "(total_spent = (select round(coalesce(sum(amount), 0), 4) from sell where member_id = 1)) "
        "from member");
    EXPECT_EQ(rows, "1,1 1") << "stock of the goods, the member's purchases";
    const std::string onCard =
        value(books, "round(900000 - coalesce(sum(card_pay), 0), 4) from sell");
    EXPECT_EQ(value(books, "card from member"),
              generalNumber(Currency::parse(onCard).value() - chargedInVain));
    EXPECT_EQ(bookFaults(), "");
  }

  /// The same bill with a fault at the n-th call; false when the bill needed fewer calls.
  bool sellWithFault(Tender tender, bool member, std::int64_t call) {
    till.answersYes = call % 2 == 0;
    const Currency chargedBefore = chargedInVain;
    disk.breakAt(fault, call, failing);
    EXPECT_NO_THROW(sellOne(tender, member)) << "the program goes on";
    checkpoint();
    disk.mend();
    if (!disk.failed()) return false;
    for (const std::string& text : till.messages) {
      EXPECT_FALSE(text.empty());
      EXPECT_EQ(text.find("数据语句有误"), std::string::npos) << text;
    }
    till.messages.clear();
    if (till.ended) startAgain(chargedBefore);
    return true;
  }

  /// The next bill did not open, and the cashier gave up instead of trying again: the program
  /// ended. A bill that was to be entered again has not been, so that its completion is told and
  /// counts.
  void startAgain(Currency chargedBefore) {
    till.ended = false;
    std::destroy_at(&session);
    std::construct_at(&session, pos, till, SaleSession::Openers());
    open();
    if (till.messages.empty()) return;
    EXPECT_THAT(till.messages.front(), testing::HasSubstr("现在已补存"));
    settledBills.push_back(bill().BillNo() - 1);
    --tally.reentered;
    ++tally.completed;
    chargedInVain = chargedBefore;
  }

  /// The cause is gone: the cashier cancels what is left, the next bill is as any other, and the
  /// books hold when the screen opens again.
  void goOn(Tender tender, bool member) {
    press(kF12);
    till.messages.clear();
    const std::size_t before = settledBills.size();
    EXPECT_NO_THROW(sellOne(tender, member));
    EXPECT_EQ(settledBills.size(), before + 1) << "the till is usable again";
    till.messages.clear();
    press(kEsc);
    open();
    compare();
  }

  /// As the sale screen does when the cashier is idle; a failure waits for the next time.
  void checkpoint() {
    try {
      pos.gConn->checkpoint();
    } catch (const StoreError&) {
      EXPECT_TRUE(disk.failed());
    }
  }

  /// What stands in the books beside sales, and how many entries the journal has.
  std::string steps() {
    return value(*pos.gConn,
                 "(select count(*) || ' shifts, closed ' || count(closed) from shift) || "
                 "(select ', cash moved ' || count(*) from shift_cash) || "
                 "(select ', counted ' || count(*) from shift_count) || "
                 "(select ', returns ' || count(*) from un_sell) || "
                 "(select ', entries ' || count(*) from fact)");
  }
  /// Each step is done with its entry, or neither is: then it can be done again.
  void stepWithFault(const std::function<bool()>& step, std::int64_t call, bool& hit) {
    const std::string before = steps();
    disk.breakAt(fault, call, failing);
    bool done = false;
    try {
      done = step();
      EXPECT_TRUE(done);
    } catch (const StoreError&) {
      EXPECT_TRUE(disk.failed());
    }
    checkpoint();
    disk.mend();
    if (disk.failed()) {
      hit = true;
      ++tally.faults;
    }
    EXPECT_EQ(steps() == before, !done) << before << "; now: " << steps();
    EXPECT_TRUE(done || step());
    EXPECT_EQ(bookFaults(), "");
    ++tally.steps;
  }
  /// False when no step needed so many calls.
  bool shiftWithFaults(std::int64_t call) {
    ShiftBooks shifts = pos.shiftBooks();
    bool hit = false;
    stepWithFault([&] { return takeBack(settledBills.back()); }, call, hit);
    stepWithFault([&] { return shifts.move(kDue, "零钱").has_value(); }, call, hit);
    stepWithFault([&] { return shifts.count({{1, 0, 0, 0, 0, 4}}); }, call, hit);
    stepWithFault([&] { return shifts.close(); }, call, hit);
    stepWithFault([&] { return shifts.open(kDue); }, call, hit);
    return hit;
  }
  bool takeBack(std::int32_t billNo) {
    ReturnBooks books = pos.returnBooks();
    const auto bill = books.find(billNo).bill;
    return books.takeBack(*bill, *bill->Items().at(1), 1, Currency::fromYuan(1)).kind ==
           ReturnBooks::Outcome::kDone;
  }

  Disk::Fault fault;
  std::int64_t failing;
  Tally& tally;
  Currency chargedInVain;  ///< of bills that could not be stored; the cashier was told
  std::vector<std::int32_t> settledBills;

 private:
  void TestBody() override {}
};

/// The same again and again, the fault one call later each time, until no call is left.
template <class Work>
void faultAtEveryCall(Disk::Fault fault, std::int64_t failing, Tally& tally, const Work& work) {
  bool hit = true;
  for (std::int64_t first = 1; hit; first += kCallsPerShop) {
    DiskTill till(fault, failing, tally);
    for (std::int64_t call = first; hit && call < first + kCallsPerShop; ++call) {
      SCOPED_TRACE("call " + std::to_string(call) + ", failing " + std::to_string(failing));
      hit = work(till, call) && !testing::Test::HasFailure();
    }
  }
}

/// A fault that passes after a few calls meets the engine in the midst of repairing what it broke.
template <class Work>
void withEveryFault(const Work& work) {
  std::vector<std::int64_t> durations = {1, Disk::kUntilMended};
  if (longRun) durations.insert(durations.end(), {2, 3, 4, 5, 6, 8, 10, 15, 20, 30});
  for (const auto& [name, fault] : kFaults) {
    SCOPED_TRACE(name);
    Tally tally;
    for (const std::int64_t failing : durations) work(fault, failing, tally);
    if (testing::Test::HasFailure()) return;
    std::cout << "faults (" << name << "): " << tally.faults
              << ", bills to be entered again: " << tally.reentered
              << ", completed at the next start: " << tally.completed
              << ", other steps: " << tally.steps << ", lost: 0\n";
  }
}

TEST(DiskFaultTest, AFaultAtAnyCallOfABillLosesNothing) {
  withEveryFault([](Disk::Fault fault, std::int64_t failing, Tally& tally) {
    for (const Tender tender : {Tender::kCash, Tender::kStoredCard}) {
      for (const bool member : {false, true}) {
        SCOPED_TRACE(std::string(tender == Tender::kCash ? "cash" : "card") +
                     (member ? ", member" : ""));
        faultAtEveryCall(fault, failing, tally, [&](DiskTill& till, std::int64_t call) {
          const bool hit = till.sellWithFault(tender, member, call);
          if (hit) ++tally.faults;
          till.goOn(tender, member);
          return hit;
        });
      }
    }
  });
}

TEST(DiskFaultTest, AFaultAtAnyCallLeavesStepsOfAShiftAndReturnsWholeOrUndone) {
  withEveryFault([](Disk::Fault fault, std::int64_t failing, Tally& tally) {
    faultAtEveryCall(fault, failing, tally, [](DiskTill& till, std::int64_t call) {
      till.sellOne(Tender::kCash, true);
      return till.shiftWithFaults(call);
    });
  });
}
