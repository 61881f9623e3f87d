#include <gmock/gmock.h>

#include <memory>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Literal.h"
#include "store/StoreError.h"

using namespace std::string_literals;

namespace {

class StatementTest : public testing::Test {
 protected:
  StatementTest() { connection_ = createDataFile({folder_.file("pos.mdb"), ""}); }

  std::size_t count(const std::string& from) {
    return connection_->Open("select 1 from " + from).count();
  }

  template <class Step>
  static void expectFault(Step step, const char* text) {
    EXPECT_THAT(step, testing::ThrowsMessage<StoreError>(testing::HasSubstr(text)));
  }

  TemporaryFolder folder_;
  std::unique_ptr<Connection> connection_;
};

TEST_F(StatementTest, ValuesComeBackExactlyAndAsTheTypeAskedFor) {
  const std::string hostile = "'; drop table sell; --\0中\xF0\x9F\x98\x80\"%_"s;
  const DateTime time{{2026, 11, 2}, 9, 5, 3};
  connection_->Execute("insert into [TMDA] (sptm, spbm, xsdj, pfj, zk, dwbl, kssj) values (" +
                       quotedText(hostile) + ", '1', " + literal(Currency::fromScaled(123456)) +
                       ", " + literal(-0.1) + ", 0.9, 24, " + literal(time) + ")");
  Rows rows = connection_->Read("select * from tmda where SPTM = " + quotedText(hostile));
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("sptm"), hostile);
  EXPECT_EQ(rows.text("XSDJ"), "12.3456");
  EXPECT_EQ(rows.currency("xsdj"), Currency::fromScaled(123456));
  EXPECT_EQ(rows.currency("pfj"), Currency::fromScaled(-1000));
  EXPECT_EQ(rows.number("zk"), 0.9);
  EXPECT_EQ(rows.whole("dwbl"), 24);
  EXPECT_EQ(rows.currency("dwbl"), Currency::fromYuan(24));
  EXPECT_EQ(rows.dateTime("kssj"), time);
  EXPECT_TRUE(rows.isNull("cxj"));
  EXPECT_EQ(rows.currency("cxj"), std::nullopt);
  EXPECT_EQ(rows.text("cxj"), "");
  expectFault([&] { (void)rows.currency("sptm"); }, "“sptm”的内容不是金额");
  expectFault([&] { (void)rows.dateTime("sptm"); }, "“sptm”的内容不是日期");
  expectFault([&] { (void)rows.number("nowhere"); }, "没有“nowhere”这一列");
  expectFault([&] { (void)rows.whole("zk"); }, "“zk”的内容不是整数");
  EXPECT_FALSE(rows.next());
  EXPECT_FALSE(rows.next()) << "the end must not be the beginning";
  for (const std::int64_t scaled : {1L, 9999L, -1005L, 99999999999999L, 9007199254740991L}) {
    const Currency money = Currency::fromScaled(scaled);
    EXPECT_EQ(connection_->run("update tmda set xsdj = ?", money), 1);
    EXPECT_EQ(connection_->Open("select xsdj from tmda").row(0).currency("xsdj"), money);
  }
}

TEST_F(StatementTest, TextComparesWithoutCasePasswordsExactlyDatesInOrderOfTime) {
  connection_->run("insert into member (bh, password, join_date, birthday) values (?, ?, ?, ?)",
                   "Vip中1", "Secret", DateTime{{2026, 9, 30}, 23, 59, 59}, "");
  EXPECT_EQ(count("member where bh = 'vIP中1'"), 1U);
  EXPECT_EQ(count("member where bh like '%ip_1%'"), 1U);
  EXPECT_EQ(count("member where password = 'Secret'"), 1U);
  EXPECT_EQ(count("member where password = 'secret'"), 0U);
  EXPECT_EQ(count("member where join_date >= #2026-9-30# and join_date < #2026-10-1#"), 1U);
  EXPECT_EQ(count("member where join_date >= #2026-10-1 00:00:00#"), 0U);
  EXPECT_EQ(connection_->Execute("update member set card = '12.50' where bh = 'VIP中1'"), 1);
  EXPECT_EQ(connection_->Open("select card from member").row(0).currency("card"),
            Currency::fromScaled(125000));
}

TEST_F(StatementTest, NoMessageRepeatsAPasswordOutOfItsStatement) {
  connection_->run("insert into member (bh, join_date) values ('1', ''), ('2', '')");
  for (const char* text :
       {"update member set password = 'geheim' whre bh = '1'",
        "update member set password = 'geheim", "update member set password = 'geheim'; select 1",
        "update member set password = 'geheim', bh = '2' where bh = '1'",
        "select * from member where password = #geheim#"}) {
    try {
      connection_->Execute(text);
      ADD_FAILURE() << "took " << text;
    } catch (const StoreError& error) {
      EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("geheim")));
    }
  }
}

TEST_F(StatementTest, QueriesNestAndSurviveAChangeOfTables) {
  connection_->runScript("insert into SP_LB values (1, 'x'), (2, 'x'), (3, 'x')");
  const char* const text = "select * from SP_LB order by SPLB_ID";
  int pairs = 0;
  Rows outer = connection_->query(text);
  while (outer.next()) {
    Rows inner = connection_->query(text);
    while (inner.next()) pairs += outer.whole("SPLB_ID") <= inner.whole("SPLB_ID") ? 1 : 0;
  }
  EXPECT_EQ(pairs, 6);
  connection_->runScript("alter table SP_LB add column more default 7");
  Rows again = connection_->query(text);
  ASSERT_TRUE(again.next());
  EXPECT_EQ(again.whole("more"), 7);
}

TEST_F(StatementTest, FaultsLeaveTheConnectionUsable) {
  expectFault([&] { connection_->Execute(""); }, "不是一条语句");
  expectFault([&] { connection_->run("delete from sell; delete from member"); }, "不是一条语句");
  connection_->run("insert into stock values ('a', 1)");
  expectFault([&] { connection_->run("insert into stock values ('A', 1)"); }, "冲突");
  EXPECT_EQ(count("stock"), 1U);
}

}  // namespace
