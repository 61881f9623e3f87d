#include <filesystem>

#include "sync/LiveBills.h"
#include "tools/Examination.h"

using testing::HasSubstr;
using Outcome = ReturnBooks::Outcome;

namespace {

struct Killed {};

}  // namespace

struct ReturnsTest : LiveBills {
  LiveTill first{join(1, "first")}, second{join(2, "second")};

  static std::string asked(const char* condition) {
    return value("select count(*) from shop.return_asked where " + std::string(condition));
  }
  static std::string left(const LiveTill& till) {
    return till.till.value("select amount as value from sellProducts where bm = 'B'");
  }
};

TEST_F(ReturnsTest, TakesALineBackOnceWhicheverTillDoes) {
  const int bill = first.till.sell(3).first;
  EXPECT_EQ(second.till.takeBack(bill, 1).kind, Outcome::kRefused) << "it is not there yet";
  EXPECT_EQ(first.till.takeBack(bill, 0.5).kind, Outcome::kDone) << "nobody else's affair";
  first.errand();
  EXPECT_EQ(second.till.takeBack(bill, 3).kind, Outcome::kRefused);
  EXPECT_EQ(second.till.takeBack(bill, 1).kind, Outcome::kDone);
  EXPECT_EQ(second.count("sell"), "0") << "a bill is in its own till's file alone";
  EXPECT_EQ(second.till.stock(), "1001");
  EXPECT_EQ(second.till.value("select bm || line as value from return_elsewhere"), "B2");
  EXPECT_THAT(first.till.takeBack(bill, 2).why, HasSubstr("只剩 1.5 "));
  EXPECT_EQ(first.till.takeBack(bill, 0.5).kind, Outcome::kDone);
  second.errand();
  EXPECT_EQ(left(first), "2");
  TillErrands errands(*first.till.shop, *first.joined->line, 1);
  for (int told = 1; told <= 2; ++told)
    errands.step(std::chrono::steady_clock::now() + told * 2 * TillErrands::kHeartbeat);
  first.errand();
  EXPECT_EQ(left(first), "1") << "what came back elsewhere, once";
  EXPECT_EQ(first.till.stock(), "998") << "the other till has it";
  EXPECT_EQ(asked("told is not null"), "1");
  EXPECT_EQ(stock(), "999");
  EXPECT_EQ(value("select trim_scale(sum(quantity)) from shop.taken_back"), "2");
  expectSound();
  EXPECT_TRUE(shop().check(true).faults.empty());
}

TEST_F(ReturnsTest, TheSellersBooksAgreeWithWhatCameBackElsewhere) {
  const auto faults = [this] {
    std::string found;
    const auto add = [&found](const std::string& text) { found += text; };
    examineBills({*first.till.shop, localTime(), add, add, [](auto) {}});
    return found;
  };
  const int bill = first.till.sell(3, "8001").first;
  first.errand();
  EXPECT_EQ(faults(), "");
  EXPECT_EQ(second.till.takeBack(bill, 1).kind, Outcome::kDone);
  second.errand();
  first.errand();
  ASSERT_EQ(asked("told is not null"), "1");
  EXPECT_EQ(faults(), "") << "the card paid for what was due then";
}

TEST_F(ReturnsTest, UndoesWhatWasNotAnswered) {
  const int bill = first.till.sell(3).first;
  first.errand();
  second.way.trouble = [this] {
    second.way.pass();
    return BillAuthority::ReturnAnswer{};
  };
  EXPECT_EQ(second.till.takeBack(bill, 3).kind, Outcome::kNoAnswer);
  EXPECT_EQ(asked("state = 'open'"), "1");
  second.errand();
  second.way.trouble = [this]() -> BillAuthority::ReturnAnswer {
    second.way.pass();
    throw Killed();
  };
  EXPECT_THROW(second.till.takeBack(bill, 3), Killed);
  EXPECT_EQ(second.count("return_pending"), "1");
  second.till.begin();
  second.errand();
  EXPECT_EQ(second.way.pass().reply, BillAuthority::Reply::kNone) << "it comes after it was undone";
  EXPECT_EQ(asked("state = 'voided'"), "2");
  EXPECT_EQ(second.count("return_pending"), "0");
  EXPECT_EQ(second.till.stock(), "1000");
  EXPECT_EQ(first.till.takeBack(bill, 3).kind, Outcome::kDone) << "all of it is still sold";
  second.way.trouble = [this] {
    second.way.pass();
    return second.way.pass();
  };
  const int other = first.till.sell(1).first;
  first.errand();
  EXPECT_EQ(second.till.takeBack(other, 0.75).kind, Outcome::kDone);
  EXPECT_EQ(second.till.takeBack(other, 0.5).kind, Outcome::kRefused) << "asked twice, taken once";
  EXPECT_EQ(second.till.takeBack(other, 0.25).kind, Outcome::kDone);
  expectSound();
}

TEST_F(ReturnsTest, FollowsTheOwnersRuleWithoutContact) {
  const int known = first.till.sell(3).first;
  first.errand();
  const int fresh = first.till.sell(2).first;
  std::filesystem::remove(first.file().string() + ".sync");
  first.way.trouble = [] { return BillAuthority::ReturnAnswer(); };
  EXPECT_EQ(first.till.takeBack(known, 1).kind, Outcome::kNoAnswer) << "nobody knows who has it";
  first.way.trouble = [this] { return first.way.pass(); };
  for (LiveTill* till : {&first, &second}) till->lose(true);
  EXPECT_EQ(first.till.takeBack(fresh, 1).kind, Outcome::kDone) << "nobody else knows it";
  EXPECT_THAT(first.till.takeBack(known, 1).why, HasSubstr("没有联网"));
  EXPECT_EQ(first.count("return_pending"), "0") << "nobody was asked";
  first.till.set("OfflineReturn", "1");
  second.till.set("OfflineReturn", "1");
  EXPECT_EQ(first.till.takeBack(known, 1).kind, Outcome::kDone);
  EXPECT_EQ(second.till.takeBack(known, 1).kind, Outcome::kRefused) << "another till's never";
  for (LiveTill* till : {&first, &second}) till->lose(false);
  first.errand();
  EXPECT_EQ(asked("state = 'settled' and asked is null"), "2") << "what was done is the proof";
  EXPECT_EQ(second.till.takeBack(known, 2.5).kind, Outcome::kRefused);
  EXPECT_EQ(second.till.takeBack(known, 2).kind, Outcome::kDone);
  expectSound();
}
