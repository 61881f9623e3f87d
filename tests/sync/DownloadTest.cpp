#include "saleslib/ClsMember.h"
#include "saleslib/JournalBase.h"
#include "saleslib/StoredCard.h"
#include "server/Publishing.h"
#include "store/FragmentIndex.h"
#include "sync/Fetching.h"

using testing::HasSubstr;

struct DownloadTest : FetchingFixture {
  DownloadTest() : office(createDataFile({folder.file("office"), ""}, [](Connection&) {})) {
    change("insert into operators (id, name, code, password) values (1, '张三', '1', 'hash')");
    change("insert into operator_rights values (1, 'sell')");
  }
  void change(const char* statement) { office->run(statement); }
  void addGoods(int from, int upTo) {
    office->run(
        "with recursive n (i) as (select ? union all select i + 1 from n where i < ?)"
        " insert into spda (f_spbm, f_spmc, f_Ggxh, f_xsdj) select 'K' || i, '茶' || i, '大包', 1.5"
        " from n",
        from, upTo);
    office->run(
        "insert into tmda (sptm, spbm, spmc, ggxh, xsdj) select '69' || f_spbm, f_spbm, f_spmc,"
        " f_Ggxh, f_xsdj from spda where f_spbm not in (select spbm from tmda)");
  }
  Published publishAll() {
    owner->close();
    return publish(*owner, *office, {}, [](std::int64_t) {});
  }
  /// A member's purchases and points in the shop.
  static std::string figures(const std::string& card) {
    return value(
        "select string_agg(trim_scale(amount)::text, ' ' order by what desc)"
        " from shop.member_sum where number = '" +
        card + "'");
  }
  static std::string goods(Fetching& till) {
    return till.till.value("select count(*) as value from tmda");
  }
  static void expectIndexed(Fetching& till) {
    updateFragmentIndex(*till.till.shop);
    EXPECT_TRUE(fragmentIndexIsRight(*till.till.shop));
  }

  std::unique_ptr<Connection> office;
};

TEST_F(DownloadTest, BringsWhatTheOfficePublished) {
  Fetching till(join(1, "till"));
  addGoods(1, 1200);
  const Published first = publishAll();
  EXPECT_EQ(first.added, 2402);
  till.bring();
  EXPECT_EQ(goods(till), "1200");
  EXPECT_EQ(till.price("69K7"), "1.5");
  change("update tmda set xsdj = 2.25 where sptm = '69K7'");
  change("delete from tmda where sptm = '69K8'");
  change("insert into sys_param values ('ShopName', '小店'), ('Journal', '0')");
  const Published second = publishAll();
  EXPECT_EQ(std::to_string(second.added) + std::to_string(second.changed) +
                std::to_string(second.removed),
            "111");
  till.bring();
  EXPECT_EQ(till.price("69K7"), "2.25");
  EXPECT_EQ(till.price("69k8"), "(gone)");
  EXPECT_EQ(till.till.value("select value from sys_param where name = 'ShopName'"), "小店");
  EXPECT_EQ(till.till.value("select value from sys_param where name = 'Journal'"), "1");
  EXPECT_EQ(publishAll().changed, 0);
  expectIndexed(till);
  const char* const kNames = "select count(*) as value from sys_param where name = 'ShopName'";
  change("delete from sys_param where name = 'ShopName'");
  publishAll();
  till.bring();
  EXPECT_EQ(till.till.value(kNames), "0") << "set no more";
  till.till.set("ShopName", "旧店");
  till.compareAll();
  EXPECT_EQ(till.till.value(kNames), "0");
}

// Numbers would be wrong here: the change that began first is seen last.
TEST_F(DownloadTest, LosesNothingThatCommitsLate) {
  Fetching till(join(1, "till"));
  addGoods(1, 3);
  publishAll();
  till.bring();
  ServerLine slow(server_->owner());
  ASSERT_TRUE(slow.run("begin; update shop.change set body = body || '{\"xsdj\": 9}'"
                       " where body->>'sptm' = '69K1'",
                       ServerLine::kPatience)
                  .isDone());
  change("update tmda set xsdj = 2.25 where sptm = '69K2'");
  publishAll();
  till.bring();
  slow.run("commit", ServerLine::kPatience);
  till.bring();
  EXPECT_EQ(till.price("69K1"), "9");
  EXPECT_EQ(till.price("69K2"), "2.25");
}

TEST_F(DownloadTest, GoesOnWhereItWasKilled) {
  Fetching till(join(1, "till"));
  till.bring();
  addGoods(1, 200);
  publishAll();
  till.bring(4);
  const std::string some = till.till.value("select count(*) as value from spda");
  EXPECT_GT(std::stoi(some), 0);
  EXPECT_LT(std::stoi(some), 200);
  till.connect();
  till.bring();
  EXPECT_EQ(goods(till), "200");
  EXPECT_LE(till.download->rows(), 402 - 50U) << "what was written is not fetched again";
  expectIndexed(till);
}

TEST_F(DownloadTest, KeepsTheGoodsWhenTheLastPageOfAllIsFull) {
  Fetching till(join(1, "till"));
  till.bring();
  addGoods(1, 246);
  change("insert into sys_param values ('ShopName', '小店')");
  publishAll();
  ASSERT_EQ(value("select count(*) from shop.change"), "500") << "a page";
  till.compareAll();
  EXPECT_EQ(goods(till), "246");
}

TEST_F(DownloadTest, ComparesEverythingWithAServerThatWasPutBack) {
  Fetching till(join(1, "till"));
  addGoods(1, 300);
  publishAll();
  till.bring();
  server_->copy();
  change("update tmda set xsdj = 2.25 where sptm = '69K1'");
  change("insert into operators (id, name, code, password) values (2, '李四', '2', 'hash')");
  addGoods(301, 310);
  change("delete from tmda where sptm = '69K2'");
  publishAll();
  till.bring();
  EXPECT_EQ(till.price("69K1") + till.price("69K2") + goods(till), "2.25(gone)309");
  server_->putBack();
  till.connect();
  till.bring();
  EXPECT_EQ(till.price("69K1") + till.price("69K2") + goods(till), "1.51.5300");
  EXPECT_EQ(till.till.value("select count(*) as value from operators where id = 2"), "0");
  publishAll();
  till.bring();
  EXPECT_EQ(till.price("69K1") + till.price("69K2") + goods(till), "2.25(gone)309");
  expectIndexed(till);
}

TEST_F(DownloadTest, AddsWhatTheOthersSoldAndChargedOnce) {
  Fetching first(join(1, "first")), second(join(2, "second"));
  const auto both = [&] {
    for (int twice = 0; twice < 2; ++twice) {
      first.bring();
      second.bring();
    }
  };
  const auto expectAlike = [&](const std::string& left, const std::string& onCard) {
    EXPECT_EQ(stock(), left);
    EXPECT_EQ(first.till.stock(), left);
    EXPECT_EQ(second.till.stock(), left);
    EXPECT_EQ(balance("8001"), onCard);
    EXPECT_EQ(first.till.balance("8001"), onCard);
    EXPECT_EQ(second.till.balance("8001"), onCard);
    EXPECT_EQ(first.figures("8001"), figures("8001"));
    EXPECT_EQ(second.figures("8001"), figures("8001"));
  };
  first.till.sell(3, "8001");
  const int bill = second.till.sell(2, "8001").first;
  both();
  expectAlike("995", "9985.23");
  second.till.takeBack(bill, 1);
  second.till.topUp("8001", 100);
  second.bring();
  first.till.sell(4);  // not brought up yet
  first.download->look();
  while (first.download->step(first.now += Download::kPause) == Download::Outcome::kMore) continue;
  EXPECT_EQ(first.till.stock(), "992") << "its own sale and the other's return";
  both();
  expectAlike("992", "10085.23");
  EXPECT_EQ(figures("8001"), "13.77 2") << "of 8.05 and 6.72, less one yuan";
  first.compareAll();
  second.compareAll();
  expectAlike("992", "10085.23");

  first.till.shop->run("update stock set quantity = 500 where spbm = 'B'");
  {
    Transaction counting(*first.till.shop);
    JournalBase(*first.till.shop).noteStock({"B"});
    counting.commit();
  }
  both();
  expectAlike("500", "10085.23");
  expectSound();
}

// A member's points are a small number at a till, and may be many in the shop.
TEST_F(DownloadTest, AddsPointsAsSoonAsThereIsRoomForThem) {
  Fetching first(join(1, "first")), second(join(2, "second"));
  const auto setPoints = [](Fetching& till, std::int16_t points) {
    ClsMember member;
    member.Init(*till.till.shop, 1, localTime);
    member.setPoints(points);
    EXPECT_TRUE(member.Save()) << member.ErrText();
    till.bring();
  };
  setPoints(first, 30'000);
  setPoints(second, 20'000);
  first.bring();
  EXPECT_EQ(figures("8001"), "0 50000");
  EXPECT_EQ(first.figures("8001"), "0 32767");
  EXPECT_EQ(second.figures("8001"), "0 32767");
  setPoints(first, 1'000);
  for (Fetching* each : {&first, &second}) {
    each->bring();
    EXPECT_EQ(each->figures("8001"), figures("8001"));
  }
  expectSound();
}

TEST_F(DownloadTest, LetsMembersAndPasswordsOfOneTillReachTheOthers) {
  Fetching first(join(1, "first")), second(join(2, "second"));
  publishAll();
  first.bring();
  second.bring();
  ClsMember member;
  member.Init(*first.till.shop, 0, localTime);
  member.setBh("9001");
  member.setName("新会员");
  member.setPassword("2468");
  member.setTotalSpent(Currency::fromYuan(7));
  ASSERT_TRUE(member.Save()) << member.ErrText();
  ClsOperator cashier;
  cashier.Init(*first.till.shop, 1);
  cashier.setPassword("new");
  cashier.Save();
  first.bring();
  first.till.topUp("9001", 30);
  member.setPhone("1390");  // what was sold comes down before the member then
  EXPECT_TRUE(member.Save());
  first.bring();
  second.bring();
  second.bring();
  EXPECT_EQ(second.till.balance("9001"), "30");
  EXPECT_EQ(second.figures("9001"), "7 0");
  EXPECT_EQ(provenCard(*second.till.shop, "9001", "2468").outcome, CardOutcome::kDone);
  EXPECT_EQ(provenCard(*second.till.shop, "9001", "").outcome, CardOutcome::kWrongPassword);
  const char* const kPassword = "select password as value from operators where id = 1";
  EXPECT_EQ(second.till.value(kPassword), first.till.value(kPassword));
  publishAll();
  first.bring();
  EXPECT_EQ(second.till.value(kPassword), first.till.value(kPassword))
      << "the office has not changed it";
  change("delete from operators where id = 1");
  publishAll();
  second.bring();
  EXPECT_EQ(second.till.value(kPassword), "(no row)");
  expectSound();
}
