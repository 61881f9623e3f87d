#include <filesystem>
#include <thread>

#include "saleslib/HeldBasket.h"
#include "saleslib/Identification.h"
#include "saleslib/LoginBrake.h"
#include "store/DataFileCopy.h"
#include "sync/LiveBills.h"

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct HeldBillsTest : LiveBills {
  LiveTill first{join(1, "first")}, second{join(2, "second")};

  static BillCalls::Wish want(LiveTill& till, const std::string& key, int bill) {
    ShopCalls calls(*till.joined->line, till.joined->number);
    return BillCalls(calls, ServerLine::kPatience).want(key, bill / 10'000'000, bill);
  }
  /// In how many places somebody could sell a basket of so many.
  int baskets(double quantity) {
    int found = 0;
    for (LiveTill* till : {&first, &second}) {
      for (const auto& bill : till->till.books().held())
        found += bill->Items().back()->Quantity() == quantity ? 1 : 0;
    }
    return found + std::stoi(value("select count(*) from shop.handed where not received"));
  }
};

TEST_F(HeldBillsTest, StayInTheirFileUntilTheyAreTakenUp) {
  SellingTill alone(folder.file("alone"));
  alone.hold(3);
  alone.begin();
  EXPECT_EQ(alone.value("select count(*) as value from sell"), "0");
  EXPECT_EQ(first.till.hold(3), 10'000'001);
  first.till.begin();
  const auto held = first.till.books().held();
  ASSERT_THAT(held, SizeIs(1));
  EXPECT_EQ(first.till.value("select quantity as value from stock where spbm = 'B'"), "997");
  EXPECT_TRUE(first.till.takeUp(*held.front()));
  EXPECT_FALSE(first.till.takeUp(*held.front()));
  EXPECT_EQ(first.till.value("select quantity as value from stock where spbm = 'B'"), "1000");
  EXPECT_THAT(first.till.books().held(), IsEmpty());
}

TEST_F(HeldBillsTest, AreHandedOverWhileTheCashierWaits) {
  first.till.hold(3);
  first.errand();
  const auto elsewhere = second.till.books().heldElsewhere();
  ASSERT_THAT(elsewhere, SizeIs(1));
  EXPECT_EQ(elsewhere.front()->BillNo(), 10'000'001);
  EXPECT_EQ(elsewhere.front()->Items().back()->Quantity(), 3);
  std::jthread beside([this](const std::stop_token& isOver) {
    while (!isOver.stop_requested()) {
      first.errand();
      std::this_thread::yield();
    }
  });
  const BillBooks::Fetched fetched = second.till.books().fetchHeld(*elsewhere.front());
  beside.request_stop();
  beside.join();
  ASSERT_EQ(fetched.kind, BillBooks::Fetched::kHere);
  EXPECT_EQ(fetched.bill->BillNo() / 10'000'000, 2);
  EXPECT_EQ(fetched.bill->Amount().scaled(), elsewhere.front()->Amount().scaled());
  EXPECT_EQ(first.till.value("select quantity as value from stock where spbm = 'B'"), "1000");
  EXPECT_EQ(second.till.value("select quantity as value from stock where spbm = 'B'"), "997");
  second.errand();
  EXPECT_EQ(baskets(3), 1);
  EXPECT_EQ(second.till.books().fetchHeld(*elsewhere.front()).kind, BillBooks::Fetched::kGone);
  EXPECT_TRUE(second.till.takeUp(*fetched.bill));
  second.errand();
  EXPECT_EQ(value("select count(*) from shop.held"), "0");
  expectSound();
}

// Whoever ends at whichever step, the next start goes on: the basket is in one place all the time.
TEST_F(HeldBillsTest, AreInOnePlaceWhoeverIsKilledOnTheWay) {
  const int bill = first.till.hold(3);
  first.errand();
  copyDataFile(*first.till.shop, folder.file("copy"));
  EXPECT_TRUE(want(second, "key", bill).isWaiting);
  ASSERT_TRUE(releaseHeld(*first.till.shop, bill, "key", 2));
  EXPECT_FALSE(releaseHeld(*first.till.shop, bill, "another", 2)) << "given up once";
  EXPECT_TRUE(want(second, "key", bill).isWaiting) << "the till that gave it up is killed";
  first.joined->connect();
  first.errand();
  const BillCalls::Wish given = want(second, "key", bill);
  EXPECT_EQ(given.reply, BillAuthority::Reply::kDone);
  EXPECT_EQ(baskets(3), 1);
  second.errand();
  const std::int64_t number = receiveHeld(*second.till.shop, "key", given.basket);
  EXPECT_EQ(number / 10'000'000, 2) << "the cashier gets what came while the till was off";
  second.errand();
  EXPECT_EQ(baskets(3), 1);
  EXPECT_EQ(want(second, "key", bill).reply, BillAuthority::Reply::kUnknown);

  first.till.shop.reset();
  std::filesystem::copy_file(folder.file("copy"), folder.file("first"),
                             std::filesystem::copy_options::overwrite_existing);
  first.till.shop = openDataFile({folder.file("first"), ""});
  first.joined->connect();
  first.errand();
  EXPECT_EQ(baskets(3), 1) << "a file that was put back holds what it gave up";
  expectSound();
}

TEST_F(HeldBillsTest, AreNotGivenUpForNobody) {
  const int bill = first.till.hold(3);
  first.errand();
  EXPECT_TRUE(want(second, "key", bill).isWaiting);
  owner->ask("update shop.held set wanted_at = now() - interval '6 seconds'");
  first.errand();
  ASSERT_EQ(first.till.books().held().size(), 1U) << "whoever wanted it went away";
  owner->ask("update shop.till set last_contact = now() - interval '11 seconds' where till = 1");
  EXPECT_EQ(want(second, "key", bill).reply, BillAuthority::Reply::kAway);
  first.errand();
  EXPECT_TRUE(want(second, "key", bill).isWaiting);
  EXPECT_TRUE(first.till.takeUp(*first.till.books().held().front())) << "its own cashier was first";
  first.errand();
  EXPECT_EQ(want(second, "key", bill).reply, BillAuthority::Reply::kUnknown);
  EXPECT_EQ(second.till.books().held().size(), 0U);
}

TEST_F(HeldBillsTest, ATillIsCalledWhenItsBillIsWantedAndAsksSeldomElse) {
  const int bill = first.till.hold(3);
  TillErrands errands(*first.till.shop, *first.joined->line, 1);
  auto now = std::chrono::steady_clock::now();
  errands.step(now);
  errands.step(now += TillErrands::kBetweenLooks);
  const char* kHeard = "select last_contact from shop.till where till = 1";
  const std::string heard = value(kHeard);
  for (int look = 0; look < 10; ++look) errands.step(now += TillErrands::kBetweenLooks);
  EXPECT_EQ(value(kHeard), heard) << "nobody wants it";
  EXPECT_TRUE(want(second, "key", bill).isWaiting);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!errands.step(now) && std::chrono::steady_clock::now() < deadline)
    std::this_thread::yield();
  EXPECT_THAT(first.till.books().held(), IsEmpty()) << "given up before the next heartbeat";
}

// Each such row was the end of all errands of the till, for as long as it stood there.
TEST_F(HeldBillsTest, ABasketThatCannotBeReadIsNotedOnceAndStandsInNoWay) {
  first.till.hold(3);
  first.errand();
  for (const char* basket :
       {"[]", "{\"bill\": 7}", "{\"bill\": {\"id\": 1}, \"lines\": [{}, 1]}"}) {
    const std::string text = std::string("'") + basket + "', md5('" + basket + "')";
    owner->ask(
        ("insert into shop.handed (from_till, bill, to_till, basket, key) values (1, 5, 2, " +
         text + ")")
            .c_str());
    owner->ask(("insert into shop.held (till, bill, basket, wanted_key) values (1, length('" +
                std::string(basket) + "'), " + text + ")")
                   .c_str());
  }
  const auto elsewhere = second.till.books().heldElsewhere();
  ASSERT_THAT(elsewhere, SizeIs(1)) << "those that can be read";
  EXPECT_TRUE(want(second, "good", 10'000'001).isWaiting);
  ASSERT_TRUE(releaseHeld(*first.till.shop, 10'000'001, "good", 2));
  first.errand();
  for (int round = 0; round < 2; ++round) {
    second.errand();
    EXPECT_THAT(second.till.books().held(), SizeIs(1)) << "the one that can be read";
    EXPECT_EQ(second.count("fact where kind = 'bill_refused'"), "3");
    EXPECT_EQ(value("select count(*) from shop.fault where till = 2"), "3");
    EXPECT_EQ(value("select count(*) from shop.handed where not received"), "0");
  }
}

TEST_F(HeldBillsTest, TheOwnerRulesWhatATillMayDoWithoutContact) {
  first.till.set("StockRule", "1");
  const auto ring = [this](double quantity) {
    BillBooks all = first.till.books();
    ClsSellItem line;
    line.Init(*first.till.shop, all.open()->BillNo());
    line.setSpCode("C");
    line.setQuantity(quantity);
    return all.ring(line);
  };
  first.lose(false);
  EXPECT_FALSE(ring(1).done());
  first.lose(true);
  EXPECT_FALSE(ring(0.25).isDoubtful);
  EXPECT_TRUE(ring(1).isDoubtful);
  first.till.set("OfflineStock", "1");
  EXPECT_FALSE(ring(1).done());

  LoginBrake brake(std::chrono::steady_clock::now);
  Identification who(*first.till.shop, first.till.rules(), brake);
  noteContact(*first.till.shop, DateTime{Date{2026, 1, 1}});
  std::filesystem::remove(first.file().string() + ".sync");
  EXPECT_THAT(who.byPassword("1", "").refusal, HasSubstr("超过 7 天"))
      << "whoever takes the file beside it away does not prolong it";
  first.till.shop->run("update link set contact = null");
  EXPECT_THAT(who.byPassword("1", "").refusal, HasSubstr("超过 7 天"));
  first.till.set("OfflineLoginDays", "0");
  EXPECT_THAT(who.byPassword("1", "").refusal, Not(HasSubstr("服务器")));
  first.till.set("OfflineLoginDays", "1");
  first.runSync([] { return DateTime{Date{2026, 1, 2}}; });
  EXPECT_THAT(who.byPassword("1", "").refusal, HasSubstr("超过 1 天"));
  first.runSync(localTime);
  EXPECT_THAT(who.byPassword("1", "").refusal, Not(HasSubstr("服务器")));
}
