#include <chrono>
#include <thread>

#include "server/ServerSteps.h"
#include "sync/ShopServerFixture.h"

using testing::HasSubstr;

struct StandbyTest : ShopServerFixture {};

TEST_F(StandbyTest, TakesOverWithoutLosingWhatWasAnswered) {
  const auto till = join(1, "till");
  EXPECT_FALSE(shop().standby().isStandby);
  ThrowAwayServer second(ThrowAwayServer::StandbyOf{*server_});
  ServerLine line = ServerLine(second.owner());
  ShopServer standby(line);
  EXPECT_TRUE(standby.standby().hearsFirst);
  EXPECT_FALSE(standby.standby().wasAwaited);
  server_->set("synchronous_standby_names = '*'");
  server_->reload();

  ServerAddress both = address(1, "password");
  both.host = second.folder().string() + "," + both.host;
  till->line = std::make_unique<ServerLine>(tillParameters(both, ""));
  till->upload = std::make_unique<Upload>(*till->till.shop, *till->line);
  const int early = till->till.sell(1).first;
  till->bring();
  EXPECT_GT(till->failures, 0) << "the second one takes nothing yet";
  EXPECT_EQ(bills(early), "1");
  till->till.sell(1);
  till->bring();
  server_->kill();

  EXPECT_TRUE(standby.standby().wasAwaited);
  EXPECT_EQ(second.value("select count(*) from shop.sale"), "2") << "what was answered is here";
  standby.promote();
  EXPECT_FALSE(standby.standby().isStandby);
  till->till.sell(1);
  till->bring();
  EXPECT_EQ(second.value("select count(*) from shop.sale"), "3");
  line.close();
  EXPECT_THAT(standby.check(false).faults, testing::IsEmpty());

  server_->set("synchronous_standby_names = ''");
  server_->start();
}

TEST_F(StandbyTest, FoldsWhatMovedLongAgoWithoutChangingASum) {
  auto till = join(1, "till");
  for (int bill = 0; bill < 3; ++bill) {
    till->till.sell(1, "8001");
    till->bring();
  }
  for (int bill = 0; bill < 2; ++bill) till->till.sell(1, "8001");
  till->bring();
  const std::string before = stock(), held = balance("8001");
  EXPECT_EQ(shop().fold(1), 0) << "nothing is that old";
  EXPECT_EQ(value("select count(*) from shop.movement"), "10");
  EXPECT_EQ(shop().fold(0), 20) << "of each item, the card, purchases and points one row stays";
  EXPECT_EQ(shop().fold(0), 0);
  EXPECT_EQ(stock(), before);
  EXPECT_EQ(balance("8001"), held);
  expectSound();
  till->till.topUp("8001", 5);
  till->till.sell(2);
  till->bring();
  EXPECT_EQ(stock(), "993");
  EXPECT_EQ(shop().fold(0), 3);
  expectSound();
  value("update shop.movement set quantity = quantity - 1 where item = 'b' returning item");
  EXPECT_THAT(shop().check(true).faults, testing::SizeIs(1));
  EXPECT_EQ(value("select count(*) from shop.movement"), "12") << "made anew from the facts";
  EXPECT_EQ(stock(), "993");
}

struct UpgradeTest : ShopServerFixture {
  /// The server as the version before this one made it.
  void makeOlder() {
    server_->makeEmpty();
    owner->close();
    ASSERT_TRUE(owner->run(kServerRoles, std::chrono::seconds(10)).isDone());
    for (std::size_t step = 0; step + 1 < serverSteps().size(); ++step) {
      ASSERT_TRUE(owner
                      ->run("begin; set local role shop_keeper;" +
                                std::string(serverSteps()[step]) +
                                "insert into shop.step (number) values (" +
                                std::to_string(step + 1) + "); commit",
                            std::chrono::seconds(10))
                      .isDone());
    }
  }
};

TEST_F(UpgradeTest, GoesOnWithWhatTheTillsBrought) {
  makeOlder();
  const auto newest = static_cast<int>(serverSteps().size());
  EXPECT_THROW(shop().init(""), Failure) << "an older shop is not made again";
  const auto till = join(1, "till");
  till->till.sell(3, "8001");
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "1") << "a till goes on at an older server";
  const ShopServer::Steps steps = shop().upgrade();
  EXPECT_EQ(steps.before, newest - 1);
  EXPECT_EQ(steps.after, newest);
  EXPECT_EQ(shop().upgrade().before, newest) << "once";
  till->till.sell(1);
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "2");
  EXPECT_EQ(stock(), "996");
  expectSound();

  value("insert into shop.step (number) values (" + std::to_string(newest + 1) +
        ") returning number");
  EXPECT_THROW(shop().upgrade(), Failure) << "a newer server";
  till->till.sell(1);
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "3") << "a till goes on at a newer server";
  server_->makeEmpty();
  EXPECT_THROW(shop().upgrade(), Failure) << "no shop";
}
