#include "CheckoutFixture.h"
#include "checkout/AmountDue.h"

using testing::ElementsAre;
using testing::IsEmpty;

class SettlementTest : public CheckoutFixture {
 protected:
  SettlementTest() {
    enter("水", "88.50");
    commitCurrentLine(state, receipt);
    pos.gPosSet.CVProt = "COM1";
    state.hasDisplay = true;
    display.OpenDisplayPort();
  }
  Settlement::CardResult payByCard(const char* number, const char* password) {
    return settlement->payByCard(number, password);
  }
  std::string balance() { return stored("card as v from member where bh='8001'"); }

  std::unique_ptr<Settlement> settlement =
      std::make_unique<Settlement>(pos, *state.curBill, display, receipt, report);
};

TEST(AmountDue, followsTheShopsRounding) {
  // By the parameters as the shop's owner sets them.
  TemporaryFolder folder;
  const auto shop = createDataFile({folder.path() / "shop.db", ""});
  const struct {
    const char* jiao;
    const char* yuan;
    const char* amount;
    const char* text;
  } cases[] = {{"0", "0", "12.345", "12.35"}, {"1", "0", "12.35", "12.40"},
               {"1", "0", "12.34", "12.30"},  {"1", "0", "12.95", "13.00"},
               {"0", "1", "12.50", "12"},     {"0", "1", "13.50", "14"},
               {"1", "1", "12.45", "13"}};
  for (const auto& row : cases) {
    ClsSysParam rules;
    rules.Conn(*shop);
    ASSERT_EQ(rules.set("RoundJiao", row.jiao) + rules.set("RoundYuan", row.yuan), "");
    Currency amount = Currency::parse(row.amount).value();
    EXPECT_EQ(myCStr(amount, rules), row.text) << row.amount;
  }
}

TEST_F(SettlementTest, figuresTypedGoIntoTheBillAtOnce) {
  const struct {
    const char* typed;
    const char* accepted;
    const char* amount;
    int salesman;
  } cases[] = {{"2.5", "2.5", "2.5", 2}, {"3.5", "3.5", "3.5", 4},
               {"", "0", "0", 0},        {"abc", "0", "0", 0},
               {"-1", "-1", "-1", -1},   {"１２", "１２", "12", 12},
               {"5.", "5.", "5", 5},     {"99999999999999999999", "0", "0", 0}};
  for (const auto& row : cases) {
    EXPECT_EQ(settlement->favorableChanged(row.typed), row.accepted);
    EXPECT_EQ(settlement->bankCardChanged(row.typed), row.accepted);
    EXPECT_EQ(settlement->salesmanChanged(row.typed), row.accepted);
    EXPECT_EQ(generalNumber(state.curBill->Favorable()), row.amount);
    EXPECT_EQ(generalNumber(state.curBill->BankCard()), row.amount);
    EXPECT_EQ(state.curBill->Salesman(), row.salesman);
  }
}

TEST_F(SettlementTest, changeIsOneDecimalOrNothing) {
  EXPECT_EQ(settlement->change("100", "0", "0"), "11.5");
  EXPECT_EQ(settlement->change("50", "8.5", "40"), "10.0");
  EXPECT_TRUE(settlement->change("", "0", "0").isNull());
  EXPECT_TRUE(settlement->change("922337203685477", "922337203685477", "0").isNull());
}

TEST_F(SettlementTest, cashTextThatIsNoNumberLeavesTheFigure) {
  state.curBill->setCash(Currency::fromYuan(7));
  settlement->confirmCash("七");
  EXPECT_TRUE(settlement->settled());
  EXPECT_EQ(state.curBill->Cash(), Currency::fromYuan(7));
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA7.00\r");
  settlement->confirmCash("100");
  EXPECT_EQ(state.curBill->Cash(), Currency::fromYuan(7));
}

TEST_F(SettlementTest, refusedCardsChargeNothing) {
  using enum Settlement::CardResult;
  pos.gConn->run(
      "insert into member (bh, name, card, password, enabled, join_date) values "
      "('8002', '李雷', 500, 'x', 0, '2026-01-02'), ('8003', '韩梅', 88.49, '', 1, ''),"
      "('80''1', 'O''Hara', 500, 'a''b', 1, '')");
  const struct {
    const char* number;
    const char* password;
    Settlement::CardResult result;
    const char* said;
  } cases[] = {
      {"9999", "Pw1", kUnknownCard, "储值卡号错误,请重输"},
      {"' or '1'='1", "", kUnknownCard, "储值卡号错误,请重输"},
      {"", "", kUnknownCard, "储值卡号错误,请重输"},
      {"8001", "pw1", kWrongPassword, "储值卡密码错误,请重输"},
      {"8001", "' or '1'='1", kWrongPassword, "储值卡密码错误,请重输"},
      {"8002", "x", kUnknownCard, "会员卡被禁用！卡号：8002，持卡人：李雷"},
      {"8003", "", kTooLittle, "储值卡余额不够,请先充值"},
  };
  for (const auto& row : cases) {
    screen.messages.clear();
    EXPECT_EQ(payByCard(row.number, row.password), row.result) << row.number;
    EXPECT_THAT(screen.messages, ElementsAre(row.said));
  }
  EXPECT_FALSE(settlement->settled());
  EXPECT_EQ(stored("sum(card) as v from member"), "1176.99");

  screen.messages.clear();
  EXPECT_TRUE(settlement->checkCard("80'1"));
  EXPECT_EQ(payByCard("80'1", "a'b"), kPaid);
  EXPECT_EQ(stored("card as v from member where name='O''Hara'"), "411.5");
}

TEST_F(SettlementTest, cardPaysTheWholeAmountDueOnce) {
  state.curBill->setFavorable(Currency::fromYuan(5));
  state.curBill->setCash(Currency::fromYuan(100));
  EXPECT_EQ(payByCard("8001", "Pw1"), Settlement::CardResult::kPaid);
  settlement->sayCardPaid();
  EXPECT_EQ(balance(), "0");
  EXPECT_EQ(generalNumber(state.curBill->CardPay()), "88.5");
  EXPECT_EQ(state.curBill->Cash(), Currency());
  EXPECT_EQ(state.curBill->CardNo(), "8001");
  EXPECT_THAT(screen.messages, ElementsAre(" 储值卡消费成功！余额：0 "));
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA0.00\r");

  pos.gConn->run("update member set card = 200");
  EXPECT_EQ(payByCard("8001", "Pw1"), Settlement::CardResult::kPaid);
  EXPECT_EQ(balance(), "200");
}

TEST_F(SettlementTest, brokenStoreWhileChargingLeavesEverythingAsItWas) {
  breakStore("member");
  EXPECT_EQ(payByCard("8001", "Pw1"), Settlement::CardResult::kFailed);
  EXPECT_THAT(screen.messages, ElementsAre(testing::StartsWith("储值卡没有扣款：")));
  EXPECT_EQ(balance(), "88.5");

  // The balance could be written, the mark of the paid bill not; then cash, whose mark cannot.
  pos.gConn->runScript("drop trigger broken");
  breakStore("sell");
  EXPECT_EQ(payByCard("8001", "Pw1"), Settlement::CardResult::kFailed);
  EXPECT_EQ(balance(), "88.5");
  EXPECT_EQ(state.curBill->CardPay(), Currency());
  EXPECT_EQ(state.curBill->CardNo(), "");
  settlement->confirmCash("100");
  EXPECT_THAT(screen.messages.back(), testing::StartsWith("没有收款，请再确认一次："));
  EXPECT_FALSE(settlement->settled());
  EXPECT_EQ(ports.shown, "") << "shown before it was durable";

  pos.gConn->runScript("drop trigger broken");
  settlement->confirmCash("100");
  EXPECT_TRUE(settlement->settled());
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA100.00\r");
  EXPECT_EQ(stored("state || ':' || paid || ':' || cash as v from sell"), "0:1:100");

  pos.gConn->runScript("alter table member rename to lost");
  EXPECT_FALSE(settlement->checkCard("8001"));
  EXPECT_EQ(screen.messages.back(), "储值卡号错误,请重输");
}
