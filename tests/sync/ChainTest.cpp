#include <atomic>
#include <thread>
#include <vector>

#include "sync/ChainFixture.h"

struct ChainTest : ChainFixture {
  std::unique_ptr<Joined> joinAt(int number) {
    enter(number);
    auto joined = join(1, "shop" + std::to_string(number));
    joined->bring();
    enter(kHead);
    return joined;
  }
  /// How many of ten charges of 1,500 yuan of the card 8001, five in each shop at once, were done.
  int chargeAtOnce() {
    std::atomic<int> done = 0;
    std::vector<std::thread> shops;
    for (const int number : {1, 2}) {
      enter(number);
      shops.emplace_back([&done, parameters = tillParameters(address(1, "password"), "")] {
        ServerLine line(parameters);
        for (int key = 0; key < 5; ++key) done += charge(line, std::to_string(key)) == "done";
      });
    }
    for (std::thread& each : shops) each.join();
    enter(kHead);
    return done;
  }
  static std::string charge(ServerLine& line, const std::string& key) {
    const ServerAnswer answer =
        line.ask("select outcome from api.charge(1, $1, '8001', 1500)", {key});
    return answer.isDone() ? answer.rows.at(0).at(0).value_or("") : "no answer";
  }

  /// No shop sends again what it has sent.
  void forgetSent() {
    for (const int number : {1, 2}) {
      enter(number);
      const std::string now = value("select pg_current_wal_lsn()");
      EXPECT_EQ(soon("select confirmed_flush_lsn >= '" + now + "' from pg_replication_slots", "t"),
                "t");
    }
    enter(kHead);
  }

  static constexpr const char* kBills = "select count(*) from shop.sale";
};

TEST_F(ChainTest, AddsShopsUpAndChargesTheirCards) {
  const auto first = joinAt(1), second = joinAt(2);
  const auto sell = [&] {
    for (Joined* till : {first.get(), second.get()}) {
      till->till.sell(10);
      EXPECT_GE(till->bring(), 0);
    }
  };
  sell();
  EXPECT_EQ(soon(kBills, "2"), "2");
  EXPECT_EQ(soon("select string_agg(shop || ':' || trim_scale(quantity), ' ' order by shop)"
                 " from shop.stock_by_shop where item = 'b'",
                 "1:990 2:990"),
            "1:990 2:990")
      << "each shop's goods are its own";

  server_->kill();
  sell();
  server_->start();
  EXPECT_EQ(soon(kBills, "4"), "4") << "shops sell on, and head office catches up";

  server_->copy();
  sell();
  EXPECT_EQ(soon(kBills, "6"), "6");
  forgetSent();
  server_->putBack();
  first->till.sell(10);
  first->bring();
  EXPECT_EQ(soon(kBills, "6"), "6") << "the shop's next fact brings the forgotten ones along";
  EXPECT_EQ(value("select count(*) from shop.missing(1)"), "0");
  EXPECT_EQ(value("select shop.fill(2) > 0"), "t");
  EXPECT_EQ(value("select count(*) from shop.missing(2)"), "0");
  sell();
  EXPECT_EQ(soon(kBills, "9"), "9") << "what was fetched does not stop what comes";

  EXPECT_EQ(balance("8001"), "10000") << "a card is the same in all shops";
  EXPECT_EQ(chargeAtOnce(), 6);
  EXPECT_EQ(balance("8001"), "1000");
  server_->stop();
  enter(1);
  {
    ServerLine line(tillParameters(address(1, "password"), ""));
    EXPECT_EQ(charge(line, "away"), "no answer");
  }
  enter(kHead);
  server_->start();

  enter(2);
  server_->copy();
  sell();
  server_->putBack();
  type("select pg_drop_replication_slot", 2);
  enter(kHead);
  value("set client_min_messages = warning");
  for (const char* each : {"alter subscription shop_1 disable", "alter subscription shop_1 set",
                           "drop subscription", "create subscription", "select shop.fill"})
    type(each, 2);
  sell();
  EXPECT_EQ(soon(kBills, "13"), "13") << "a shop that was put back is heard again";
  first->till.takeBack(10'000'001, 1);
  first->bring();
  EXPECT_EQ(soon("select count(*) from shop.returned", "1"), "1");
  EXPECT_EQ(value("select string_agg(till::text, ' ') from shop.bill_back"), "1001")
      << "the other shop's bill of that number is whole";
  expectSound();
  shop().check(true);
  EXPECT_EQ(value("select count(*) from shop.touched"), "0") << "there is nobody to tell of stock";
}
