#include "OtherTill.h"
#include "ReturnsFixture.h"

class ReturnsTest : public ReturnsFixture {
 protected:
  std::string load(const QString& number) { return returns.load(number).toStdString(); }
  std::string takeBack(const char* code, double quantity, const char* refund) {
    returns.chooseByCode(code);
    if (returns.line() == nullptr) return "no such line";
    return returns.takeBack(quantity, Currency::parse(refund).value()).toStdString();
  }

  Returns returns{pos.returnBooks()};
};

TEST_F(ReturnsTest, OnlyASettledBillOfThatNumberLoads) {
  const char* const cases[][2] = {{" １ ", ""},
                                  {"x", "无效的流水号！"},
                                  {"1' or '1'='1", "无效的流水号！"},
                                  {"0", "没有找到“0”单据！"},
                                  {"1.5", "没有找到“1.5”单据！"},
                                  {"99", "没有找到“99”单据！"},
                                  {"99999999999", "没有找到“99999999999”单据！"},
                                  {"2", "单据“2”还没有结账，不能退货！"}};
  for (const auto& [typed, refusal] : cases) {
    EXPECT_EQ(load(typed), refusal);
    // A text that is no number leaves the bill before; any other refusal leaves none.
    EXPECT_EQ(returns.bill() == nullptr, QString(refusal).contains("“"));
  }
  EXPECT_EQ(stored("count(*) as v from sell"), "2") << "number 0 opened no bill";
  EXPECT_EQ(load("30000001"), "没有找到“30000001”单据！");
  pos.gConn->runScript("insert into link values (1, 2, 1, '', 0, '', '', '', null)");
  EXPECT_EQ(load("30000001"), "单据“30000001”是 3 号收银机的，请到那台收银机上退货！");
  EXPECT_EQ(load("20000001"), "没有找到“20000001”单据！");
  pos.gConn->runScript("update sellProducts set amount = 9 where sellId = 1");
  EXPECT_EQ(load("1"), "单据 1 的商品明细与合计不符，数据文件可能已损坏，请与管理员联系！")
      << "a damaged bill is not returned against";
}

TEST_F(ReturnsTest, AnotherTillsBillIsTakenBackByTheServersLeaveAlone) {
  OtherTill other;
  pos.gConn->runScript("insert into link values (1, 2, 1, '', 0, '', '', '', null)");
  Returns all{ReturnBooks(*pos.gConn, pos.clock, pos.gOperator, &other)};
  const auto takeBack = [&all](double quantity) {
    all.chooseById(1);
    return all.takeBack(quantity, Currency::fromYuan(2)).toStdString();
  };
  using enum BillAuthority::Reply;
  const std::pair<BillAuthority::Reply, const char*> refusals[] = {
      {kNone, "没有联网，不能退别台的单！"},
      {kUnknown, "服务器上没有这张单据的这一行，不能退货！"},
      {kTooMuch, "别的收银机已经退过，这一行现在只剩 0.5 可退！"}};
  for (const auto& [reply, refusal] : refusals) {
    other.reply = kDone;
    ASSERT_EQ(all.load("30000007").toStdString(), "");
    other.reply = reply;
    EXPECT_EQ(takeBack(1), refusal);
    EXPECT_EQ(all.bill() != nullptr, reply == kNone) << "what nobody answered changed nothing";
  }
  EXPECT_EQ(stored("count(*) as v from return_pending"), "0");
  EXPECT_EQ(stored("quantity as v from stock where spbm = '1001'"), "93");
  other.reply = kDone;
  ASSERT_EQ(all.load("30000007").toStdString(), "");
  EXPECT_EQ(takeBack(2), "");
  EXPECT_EQ(
      stored("sell_id || ' ' || item_id || ' ' || quantity || ' ' || money as v from un_sell"),
      "30000007 0 2 2");
  EXPECT_EQ(stored("quantity as v from stock where spbm = '1001'"), "95");
  ASSERT_EQ(all.load("30000007").toStdString(), "");
  all.chooseById(1);
  EXPECT_NE(all.doubt(1, Currency::fromYuan(4)), "") << "what was refunded before counts";
  other.reply = kNone;
  EXPECT_EQ(all.load("30000007").toStdString(),
            "没有联网，不能退别台的单！\n单据“30000007”是 3 号收银机的，可以到那台收银机上退货。");
}

TEST_F(ReturnsTest, EverythingThatAReturnTouchesAgreesWithWhatCameBack) {
  const char* afterFirst = "95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6";
  const char* afterAll = "100 / 0x0,0x0 / 0 0 0 32 / 1x9,2x4.2,1x5 / 13.8 6";
  const struct {
    const char* code;
    double quantity;
    const char *refund, *refusal, *books;
  } steps[] = {
      {" 6901", 1, "9", "", afterFirst},
      {"6901", 0, "9", "没有可退的数量！", afterFirst},
      {"6901", 1, "-1", "实退金额不能是负数！", afterFirst},
      // More than the line holds: everything takes what it holds, and the refund falls with it.
      {"6901", 5, "10.5", "", "99 / 0x0,1x5 / 1 5 5 32 / 1x9,2x4.2 / 18.8 6"},
      {"ａ７", 1, "5", "", afterAll},
      {"6901", 1, "1", "no such line", afterAll},
  };
  ASSERT_EQ(load("1"), "");
  for (const auto& s : steps) {
    EXPECT_EQ(takeBack(s.code, s.quantity, s.refund), s.refusal);
    EXPECT_EQ(books(), s.books);
    EXPECT_TRUE(*s.refusal != '\0' || returns.line() == nullptr) << "it would be stored twice";
  }
  EXPECT_EQ(stored("sell_id || ' ' || item_id || ' ' || operator_id || ' ' || ratio || ' ' ||"
                   " discount || ' ' || cost || ' ' || un_time as v from un_sell"),
            "1 1 1 2 0.9 1.2 2026-11-22 09:05:03");
}

TEST_F(ReturnsTest, WhatIsRefundedBeyondPiecesOrLineIsAskedFor) {
  const struct {
    double quantity;
    const char *refund, *asked;
  } steps[] = {
      {3, "27", ""},
      {3, "27.01", "实退金额 27.01 元超过了所退商品的金额 27.00 元，确定要退吗？"},
      {1, "9.01", "实退金额 9.01 元超过了所退商品的金额 9.00 元，确定要退吗？"},
      {2, "18",
       "实退金额 18.00 元超过了该商品的剩余金额 0.00 元（以前退货时已多退），确定要退吗？"}};
  ASSERT_EQ(load("1"), "");
  for (const auto& s : steps) {
    // Before the last step one piece has come back for the price of all.
    if (s.quantity == 2) {
      ASSERT_EQ(takeBack("6901", 1, "27"), "");
    }
    returns.chooseByCode("6901");
    EXPECT_EQ(returns.doubt(s.quantity, Currency::parse(s.refund).value()).toStdString(), s.asked);
  }
}

TEST_F(ReturnsTest, TheRoundingOfTheSettlementStaysUntilNothingIsLeft) {
  pos.gConn->runScript("update sell set amount = 32.4 where id = 1");
  ASSERT_EQ(load("1"), "");
  EXPECT_EQ(takeBack("A7", 1, "5"), "");
  EXPECT_EQ(twoDecimals(returns.bill()->Amount()), "27.40");
  EXPECT_EQ(takeBack("6901", 3, "27"), "");
  EXPECT_EQ(returns.bill()->Amount(), Currency());
}

TEST_F(ReturnsTest, AReturnThatCannotBeStoredLeavesFileAndScreenAsTheyWere) {
  ASSERT_EQ(load("1"), "");
  for (const char* table : {"stock", "sellProducts", "sell", "member"}) {
    breakStore(std::string("update on ") + table);
    EXPECT_EQ(takeBack("6901", 1, "9"), "数据与已有的记录冲突：disk") << table;
    mendStore();
    EXPECT_EQ(books(), kSoldBooks) << table;
    EXPECT_EQ(generalNumber(returns.line()->Quantity()) + twoDecimals(returns.bill()->Amount()),
              "332.00");
  }
  EXPECT_EQ(takeBack("6901", 1, "9"), "");
}
