#include <fstream>
#include <iterator>

#include "server/ServerSteps.h"
#include "sync/ShopServerFixture.h"

// Server and tills are not brought to a new version at the same moment: the server comes first, and
// the tills one by one; where the order was another one, nothing is lost either.
struct MixedTest : ShopServerFixture {
  static constexpr int kFirstVersion = 4;  ///< steps that the first version's server has taken

  void layDownFirstVersion() {
    server_->makeEmpty();
    owner = std::make_unique<ServerLine>(server_->owner());
    owner->run(kServerRoles, ServerLine::kPatience);
    for (int step = 1; step <= kFirstVersion; ++step) {
      const std::string number = std::to_string(step);
      const ServerAnswer taken =
          owner->run("begin; set local role shop_keeper;\n" +
                         std::string(serverSteps().at(static_cast<std::size_t>(step - 1))) +
                         "\ninsert into shop.step (number) values (" + number + "); commit",
                     ServerLine::kPatience);
      ASSERT_TRUE(taken.isDone()) << taken.text;
    }
  }
};

TEST_F(MixedTest, TakesWhatTheFirstVersionsTillsWrite) {
  std::ifstream file(FIRST_VERSION_ENTRIES);
  const std::string entries{std::istreambuf_iterator<char>(file), {}};
  join(1, "till");
  ServerLine till(tillParameters(address(1, "password"), ""));
  const ServerAnswer greeted = till.ask(
      "select epoch, applied, hash from api.hello($1, $2, $3, $4)", {"1", "0", "0", "1.0.0"});
  ASSERT_TRUE(greeted.isDone()) << greeted.text;
  const ServerAnswer charged = till.ask("select outcome, balance from api.charge($1, $2, $3, $4)",
                                        {"1", "a key", "8001", "1"});
  EXPECT_EQ(charged.rows.at(0).at(0), "unknown_card");
  const ServerAnswer put =
      till.ask("select $2, applied, hash from api.put($1, $2::integer, $3, $4, $5, $6)",
               {"1", "1", "", "0", "0", entries});
  ASSERT_TRUE(put.isDone()) << put.text;
  EXPECT_EQ(value("select string_agg(what, ' ') from shop.fault"), "(null)");
  EXPECT_EQ(value("select count(*) || ' ' || trim_scale(sum(amount)) from shop.sale"), "3 20.15");
  EXPECT_EQ(stock(), "994.5") << "of 1000, with half a piece taken back";
  EXPECT_EQ(balance("8001"), "10043.28");
  EXPECT_EQ(balance("8002"), "10000");
  EXPECT_EQ(value("select string_agg(state, ' ' order by state) from shop.charge"),
            "settled voided");
  expectSound();
}

TEST_F(MixedTest, SellsOnAtAServerOfTheFirstVersionAndWhenItGetsANewOne) {
  layDownFirstVersion();
  const auto till = join(1, "till"), other = join(2, "other");
  for (const bool isNew : {false, true}) {
    if (isNew) {
      shop().upgrade();
    }
    for (const auto& each : {&till, &other}) {
      const int bill = (*each)->till.sell(1, "8001").first;
      (*each)->till.takeBack(bill, 0.5);
      (*each)->till.topUp("8002", 10);
      for (int wait = 0; wait < 3; ++wait) (*each)->bring(std::chrono::seconds(4));
      EXPECT_EQ(bills(bill), "1");
    }
    EXPECT_EQ(stock(), isNew ? "998" : "999");
    EXPECT_EQ(balance("8002"), isNew ? "10040" : "10020");
    if (isNew) {
      expectSound();
    } else {
      EXPECT_THROW(shop().check(false), Failure) << "it is to be upgraded first";
    }
  }
  EXPECT_EQ(value("select string_agg(what, ' ') from shop.fault"), "(null)");
}
