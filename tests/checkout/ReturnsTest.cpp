#include "ReturnsFixture.h"

namespace {

constexpr const char* kSoldBooks = "93 / 3x27,1x5 / 4 32 32 32 / - / 32 6";

class ReturnsTest : public ReturnsFixture {
 protected:
  ReturnsTest() { EXPECT_EQ(books(), kSoldBooks); }

  std::string load(const QString& number) { return returns.load(number).toStdString(); }
  std::string takeBack(double quantity, const char* refund) {
    return returns.takeBack(quantity, Currency::parse(refund).value()).toStdString();
  }

  Returns returns{pos};
};

TEST_F(ReturnsTest, OnlyASettledBillOfThatNumberLoads) {
  const std::string open = std::to_string(state.curBill->BillNo());
  const struct {
    QString typed;
    std::string refusal;
  } cases[] = {
      {"1", ""},
      {" １ ", ""},
      {"", "无效的流水号！"},
      {"x", "无效的流水号！"},
      {"1' or '1'='1", "无效的流水号！"},
      {"0", "没有找到“0”单据！"},
      {"-1", "没有找到“-1”单据！"},
      {"1.5", "没有找到“1.5”单据！"},
      {"99", "没有找到“99”单据！"},
      {"99999999999", "没有找到“99999999999”单据！"},
      {QString::fromStdString(open), "单据“" + open + "”还没有结账，不能退货！"},
  };
  const std::string bills = stored("count(*) as v from sell");
  for (const auto& c : cases) {
    EXPECT_EQ(load(c.typed), c.refusal);
    // A text that is no number leaves the bill before; any other refusal leaves none.
    EXPECT_EQ(returns.bill() != nullptr, c.refusal.empty() || c.refusal == "无效的流水号！");
  }
  EXPECT_EQ(stored("count(*) as v from sell"), bills);
  pos.gConn->runScript("update sellProducts set amount = 9 where sellId = 1");
  EXPECT_NE(load("1"), "") << "a damaged bill is refused, not returned against";
}

TEST_F(ReturnsTest, EverythingThatAReturnTouchesAgreesWithWhatCameBack) {
  const struct {
    const char* code;
    double quantity;
    const char *refund, *refusal, *books;
  } steps[] = {
      {" 6901", 1, "9", "", "95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6"},
      {"6901", 0, "9", "没有可退的数量！", "95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6"},
      {"6901", 1, "-1", "实退金额不能是负数！", "95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6"},
      // More than the line holds: the record, the stock and the line take what it holds.
      {"6901", 5, "10.5", "", "99 / 0x0,1x5 / 1 5 5 32 / 1x9,2x10.5 / 12.5 6"},
      {"ａ７", 1, "5", "", "100 / 0x0,0x0 / 0 0 0 32 / 1x9,2x10.5,1x5 / 7.5 6"},
  };
  ASSERT_EQ(load("1"), "");
  for (const auto& s : steps) {
    returns.chooseByCode(s.code);
    ASSERT_TRUE(returns.line()) << s.code;
    EXPECT_EQ(takeBack(s.quantity, s.refund), s.refusal);
    EXPECT_EQ(books(), s.books);
  }
  returns.chooseByCode("6901");
  EXPECT_FALSE(returns.line()) << "a line that holds nothing is not found by its code";
  EXPECT_EQ(stored("sell_id || ' ' || item_id || ' ' || operator_id || ' ' || ratio || ' ' ||"
                   " discount || ' ' || un_time as v from un_sell"),
            "1 1 1 2 0.9 2026-11-22 09:05:03");
}

TEST_F(ReturnsTest, TheRoundingOfTheSettlementStaysUntilNothingIsLeft) {
  pos.gConn->runScript("update sell set amount = 32.4 where id = 1");
  ASSERT_EQ(load("1"), "");
  returns.chooseByCode("A7");
  EXPECT_EQ(takeBack(1, "5"), "");
  EXPECT_EQ(twoDecimals(returns.bill()->Amount()), "27.40");
  returns.chooseByCode("6901");
  EXPECT_EQ(takeBack(3, "27"), "");
  EXPECT_EQ(returns.bill()->Amount(), Currency());
}

TEST_F(ReturnsTest, AReturnInTheMiddleOfTheMembersNextBillIsNotForgotten) {
  attachMember();
  enter("茶", "5");
  ASSERT_EQ(load("1"), "");
  returns.chooseByCode("6901");
  EXPECT_EQ(takeBack(3, "27"), "");
  payCash("5");
  EXPECT_EQ(stored("total_spent as v from member"), "10");
}

TEST_F(ReturnsTest, AReturnThatCannotBeStoredLeavesFileAndScreenAsTheyWere) {
  for (const char* table : {"stock", "sellProducts", "sell", "member"}) {
    ASSERT_EQ(load("1"), "");
    returns.chooseByCode("6901");
    breakStore(table);
    EXPECT_NE(takeBack(1, "9"), "") << table;
    EXPECT_EQ(books(), kSoldBooks) << table;
    ASSERT_TRUE(returns.line());
    EXPECT_EQ(returns.line()->Quantity(), 3);
    EXPECT_EQ(twoDecimals(returns.bill()->Amount()), "32.00");
    pos.gConn->runScript("drop trigger broken");
  }
  EXPECT_EQ(takeBack(1, "9"), "");
}

}  // namespace
