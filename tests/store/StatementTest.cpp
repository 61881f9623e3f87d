#include "StoreFixture.h"
#include "store/Literal.h"

using namespace std::string_literals;

using StatementTest = StoreFixture;

TEST_F(StatementTest, ValuesComeBackExactlyAndAsTheTypeAskedFor) {
  const std::string hostile = "'; drop table sell; --\0中\xF0\x9F\x98\x80\"%_"s;
  const DateTime time{{2026, 11, 2}, 9, 5, 3};
  connection->Execute("insert into [TMDA] (sptm, spbm, xsdj, pfj, zk, dwbl, kssj) values (" +
                      quotedText(hostile) + ", '1', " + literal(Currency::fromScaled(123456)) +
                      ", " + literal(-0.1) + ", 0.9, 24, " + literal(time) + ")");
  Rows rows = connection->Read("select * from tmda where SPTM = " + quotedText(hostile));
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("sptm"), hostile);
  EXPECT_EQ(rows.text("XSDJ") + rows.text("cxj"), "12.3456");
  EXPECT_EQ(rows.currency("xsdj"), Currency::fromScaled(123456));
  EXPECT_EQ(rows.currency("pfj"), Currency::fromScaled(-1000));
  EXPECT_EQ(rows.number("zk"), 0.9);
  EXPECT_EQ(rows.whole("dwbl"), 24);
  EXPECT_EQ(rows.currency("dwbl"), Currency::fromYuan(24));
  EXPECT_EQ(rows.dateTime("kssj"), time);
  EXPECT_EQ(rows.currency("cxj"), std::nullopt);
  EXPECT_TRUE(rows.isNull("cxj"));
  EXPECT_THAT([&] { (void)rows.currency("sptm"); }, refusal("“sptm”的内容不是金额"));
  EXPECT_THAT([&] { (void)rows.dateTime("sptm"); }, refusal("“sptm”的内容不是日期"));
  EXPECT_THAT([&] { (void)rows.number("nowhere"); }, refusal("没有“nowhere”这一列"));
  EXPECT_THAT([&] { (void)rows.whole("zk"); }, refusal("“zk”的内容不是整数"));
  EXPECT_FALSE(rows.next());
  EXPECT_FALSE(rows.next()) << "the end must not be the beginning";
  for (const std::int64_t scaled : {1L, 9999L, -1005L, 99999999999999L, 9007199254740991L}) {
    const Currency money = Currency::fromScaled(scaled);
    EXPECT_EQ(connection->run("update tmda set xsdj = ?", money), 1);
    EXPECT_EQ(connection->Open("select xsdj from tmda").row(0).currency("xsdj"), money);
  }
}

TEST_F(StatementTest, TextComparesWithoutCasePasswordsExactlyDatesInOrderOfTime) {
  connection->run("insert into member (bh, password, join_date, birthday) values (?, ?, ?, ?)",
                  "Vip中1", "Secret", DateTime{{2026, 9, 30}, 23, 59, 59}, "");
  const std::pair<const char*, std::size_t> rows[] = {
      {"bh = 'vIP中1'", 1},
      {"bh like '%ip_1%'", 1},
      {"password = 'Secret'", 1},
      {"password = 'secret'", 0},
      {"join_date >= #2026-9-30# and join_date < #2026-10-1#", 1},
      {"join_date >= #2026-10-1 00:00:00#", 0}};
  for (const auto& [where, found] : rows)
    EXPECT_EQ(count("member where "s + where), found) << where;
}

TEST_F(StatementTest, NoMessageRepeatsAPasswordOutOfItsStatement) {
  connection->run("insert into member (bh, join_date) values ('1', ''), ('2', '')");
  const std::pair<const char*, const char*> statements[] = {
      {"update member set password = 'geheim' whre bh = '1'", "语句有误"},
      {"update member set password = 'geheim", "引号没有结束"},
      {"update member set password = 'geheim'; select 1", "只能有一条语句"},
      {"update member set password = 'geheim', bh = '2' where bh = '1'", "冲突"},
      {"select * from member where password = #geheim#", "没有这个日期"}};
  for (const auto& [text, why] : statements) {
    EXPECT_THAT(([&, text = text] { connection->Execute(text); }),
                testing::ThrowsMessage<StoreError>(
                    AllOf(testing::HasSubstr(why), Not(testing::HasSubstr("geheim")))));
  }
  for (const char* none : {"", "delete from sell; delete from member"})
    EXPECT_THAT([&] { connection->run(none); }, refusal("不是一条语句"));
  EXPECT_EQ(count("member"), 2U) << "the connection stays usable";
}

TEST_F(StatementTest, QueriesNestAndSurviveAChangeOfTables) {
  connection->runScript("insert into SP_LB values (1, 'x'), (2, 'x'), (3, 'x')");
  const char* const text = "select * from SP_LB order by SPLB_ID";
  int pairs = 0;
  Rows outer = connection->query(text);
  while (outer.next()) {
    Rows inner = connection->query(text);
    while (inner.next()) pairs += outer.whole("SPLB_ID") <= inner.whole("SPLB_ID") ? 1 : 0;
  }
  EXPECT_EQ(pairs, 6);
  connection->runScript("alter table SP_LB add column more default 7");
  Rows again = connection->query(text);
  ASSERT_TRUE(again.next());
  EXPECT_EQ(again.whole("more"), 7);
}
