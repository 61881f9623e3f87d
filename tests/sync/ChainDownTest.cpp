#include "saleslib/ClsMember.h"
#include "server/Publishing.h"
#include "sync/ChainFixture.h"

struct ChainDownTest : ChainFixture {
  std::unique_ptr<Fetching> fetchAt(int number) {
    enter(number);
    auto till = std::make_unique<Fetching>(join(1, "shop" + std::to_string(number)));
    enter(kHead);
    return till;
  }
  /// The shop's server was away.
  void connectAgain(Fetching& till, int number) {
    enter(number);
    till.connect();
    enter(kHead);
  }
  /// The office of that server changes its file and publishes it.
  void publishAt(int number, Connection& office, const std::string& change,
                 std::optional<int> shop = {}) {
    if (!change.empty()) office.runScript(change);
    enter(number);
    publish(*owner, office, shop, [](std::int64_t) {});
    enter(kHead);
  }
  std::unique_ptr<Connection> office(const char* name) {
    return createDataFile({folder.file(name), ""}, [](Connection&) {});
  }
  void follow(int number) {
    type("select shop.serve_shop", number);
    enter(number);
    type("select shop.follow_head_office", number);
    enter(kHead);
  }
  /// What the till in the end asks for 茶, 米, 油 and 盐.
  static std::string soonPrices(Fetching& till, const std::string& expected) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    std::string prices;
    do {
      till.bring();
      prices = till.price("691") + " " + till.price("692") + " " + till.price("693") + " " +
               till.price("694");
    } while (prices != expected && std::chrono::steady_clock::now() < patience);
    return prices;
  }
};

TEST_F(ChainDownTest, BringsHeadOfficesGoodsToTheTillsOfItsShops) {
  const auto forAll = office("all"), forSecond = office("second"), own = office("own");
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values"
            " ('691', 'K1', '茶', 1.5), ('692', 'K2', '米', 1.5), ('693', 'K3', '油', 1.5)");
  publishAt(kHead, *forSecond,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('692', 'K2', '米', 9.9)", 2);
  publishAt(1, *own,
            "insert into tmda (sptm, spbm, spmc, xsdj) values"
            " ('691', 'K1', '茶', 5), ('694', 'K4', '盐', 3);"
            "insert into operators (id, name, code, password) values (1, '张三', '1', 'hash')");
  follow(1);
  follow(2);
  const auto first = fetchAt(1), second = fetchAt(2);
  EXPECT_EQ(soonPrices(*first, "1.5 1.5 1.5 3"), "1.5 1.5 1.5 3");
  EXPECT_EQ(soonPrices(*second, "1.5 9.9 1.5 (gone)"), "1.5 9.9 1.5 (gone)");

  enter(2);
  server_->stop();
  enter(kHead);
  publishAt(kHead, *forSecond, "update tmda set xsdj = 8", 2);
  publishAt(kHead, *forAll,
            "update tmda set xsdj = 2 where sptm = '691'; delete from tmda where sptm = '693'");
  EXPECT_EQ(soonPrices(*first, "2 1.5 (gone) 3"), "2 1.5 (gone) 3");
  enter(2);
  server_->start();
  connectAgain(*second, 2);
  EXPECT_EQ(soonPrices(*second, "2 8 (gone) (gone)"), "2 8 (gone) (gone)")
      << "a shop that was cut off catches up";

  publishAt(1, *own, "update tmda set xsdj = 6");
  EXPECT_EQ(soonPrices(*first, "2 1.5 (gone) 6"), "2 1.5 (gone) 6") << "head office's price counts";
  publishAt(kHead, *forAll, "delete from tmda where sptm = '691'");
  publishAt(kHead, *forSecond, "delete from tmda", 2);
  EXPECT_EQ(soonPrices(*first, "6 1.5 (gone) 6"), "6 1.5 (gone) 6") << "the shop's own price again";
  EXPECT_EQ(soonPrices(*second, "(gone) 1.5 (gone) (gone)"), "(gone) 1.5 (gone) (gone)");

  const std::string allThere =
      "select string_agg(shop::text, ' ' order by shop) from"
      " shop.following where connected and has_all";
  enter(1);
  server_->copy();
  enter(kHead);
  publishAt(kHead, *forAll, "update tmda set xsdj = 7 where sptm = '692'");
  EXPECT_EQ(soon(allThere, "1 2"), "1 2");
  enter(1);
  server_->putBack();
  connectAgain(*first, 1);
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('693', 'K3', '油', 4)");
  EXPECT_EQ(soonPrices(*first, "6 7 4 6"), "6 7 4 6")
      << "a shop that was put back gets what it has forgotten, too";

  enter(1);
  value("alter subscription masters_1 disable");
  enter(kHead);
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('691', 'K1', '茶', 3)");
  enter(1);
  value("select shop.fetch_masters()");
  value("alter subscription masters_1 enable");
  enter(kHead);
  EXPECT_EQ(soon(allThere, "1 2"), "1 2") << "what was fetched does not stop what comes";

  server_->copy();
  publishAt(kHead, *forAll, "update tmda set xsdj = 99");
  EXPECT_EQ(soonPrices(*second, "99 99 99 (gone)"), "99 99 99 (gone)");
  server_->putBack();
  follow(1);
  follow(2);
  EXPECT_EQ(soonPrices(*second, "3 7 4 (gone)"), "3 7 4 (gone)");
  publishAt(kHead, *forAll, "update tmda set xsdj = 10 where sptm = '692'");
  EXPECT_EQ(soonPrices(*first, "99 10 99 6"), "99 10 99 6");

  ClsMember member;
  member.Init(*second->till.shop, 0, localTime);
  member.setBh("9001");
  member.setName("新会员");
  ASSERT_TRUE(member.Save()) << member.ErrText();
  second->bring();
  EXPECT_EQ(soon("select count(*) from shop.change where key = '9001'", "1"), "1");
  EXPECT_EQ(value("select count(*) from shop.fault"), "0");
}
