#include "CheckoutFixture.h"
#include "checkout/AmountDue.h"

using enum CardOutcome;

class SettlementTest : public CheckoutFixture {
 protected:
  SettlementTest() { enter("水", "88.50"); }
  std::string balance() { return stored("card as v from member where bh='8001'"); }

  const bool isConnected = (connect("", "", "COM1"), true);
  Settlement settlement = CheckoutFixture::settlement();
};

TEST_F(SettlementTest, AmountDueFollowsTheShopsRounding) {
  const char* const cases[][4] = {{"0", "0", "12.345", "12.35"}, {"1", "0", "12.35", "12.40"},
                                  {"1", "0", "12.34", "12.30"},  {"1", "0", "12.95", "13.00"},
                                  {"0", "1", "12.50", "12"},     {"0", "1", "13.50", "14"},
                                  {"1", "1", "12.45", "13"}};
  for (const auto& [jiao, yuan, goods, due] : cases) {
    setParameter("RoundJiao", jiao);
    setParameter("RoundYuan", yuan);
    Currency amount = Currency::parse(goods).value();
    EXPECT_EQ(myCStr(amount, pos.gSysParam), due) << goods;
  }
}

TEST_F(SettlementTest, FiguresTypedGoIntoTheBillAtOnce) {
  const struct {
    const char *typed, *accepted, *amount;
    int salesman;
  } cases[] = {{"2.5", "2.5", "2.5", 2},
               {"3.5", "3.5", "3.5", 4},
               {"", "0", "0", 0},
               {"-1", "-1", "-1", -1},
               {"１２", "１２", "12", 12},
               {"5.", "5.", "5", 5},
               {"99999999999999999999", "0", "0", 0}};
  for (const auto& each : cases) {
    for (const Tender tender : {Tender::kFavorable, Tender::kBankCard, Tender::kPhone}) {
      EXPECT_EQ(settlement.figureChanged(tender, each.typed), each.accepted);
      EXPECT_EQ(generalNumber(bill->Tendered(tender)), each.amount);
    }
    EXPECT_EQ(settlement.salesmanChanged(each.typed), each.accepted);
    EXPECT_EQ(bill->Salesman(), each.salesman);
  }
  EXPECT_EQ(settlement.slipChanged("\t２８00\x01\u0085 " + QString(70, '9')),
            "2800 " + QString(59, '9'));
}

TEST_F(SettlementTest, ChangeIsOneDecimalOrNothing) {
  bill->setFavorable(Currency::parse("8.5").value());
  bill->setBankCard(Currency::fromYuan(40));
  EXPECT_EQ(settlement.change("50"), "10.0");
  EXPECT_TRUE(settlement.change("").isNull());
  bill->setBankCard(Currency::fromYuan(922337203685477));
  EXPECT_EQ(settlement.change("922337203685477"), "超出范围");
}

TEST_F(SettlementTest, CashTextThatIsNoNumberLeavesTheFigure) {
  bill->setCash(Currency::fromYuan(7));
  for (const char* typed : {"七", "100"}) settlement.confirmCash(typed);  // the first one settles
  EXPECT_EQ(screen.said(), "") << "asked although the shop does not want it";
  EXPECT_EQ(stored("paid || ' ' || cash as v from sell"), "1 7");
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA7.00\r");
}

TEST_F(SettlementTest, AsksOnceBeforeAPaymentThatLooksMistyped) {
  const char* const cases[][4] = {
      {"0", "0", "88", "收款不够，还差 0.50 元。"},
      {"0.5", "0", "八", "现金“八”不是数字，将按 0.00 元收款。\n收款不够，还差 88.00 元。"},
      {"0", "0", "10088.51", "找零有 10000.01 元。"},
      {"0.5", "0", "10088", ""},
      {"0", "88.5", "0", ""}};
  setParameter("CheckPayment", "1");
  for (const auto& [favorable, bankCard, cash, question] : cases) {
    Settlement fresh = CheckoutFixture::settlement();
    static_cast<void>(fresh.figureChanged(Tender::kFavorable, favorable));
    static_cast<void>(fresh.figureChanged(Tender::kBankCard, bankCard));
    fresh.confirmCash(cash);
    EXPECT_EQ(screen.said(),
              *question == 0 ? "" : std::string(":") + question + "\n确定这样收款吗？ 否")
        << cash;
    EXPECT_EQ(fresh.settled(), *question == 0) << cash;
  }
}

TEST_F(SettlementTest, ACardIsFoundAsTypedThenAsSwiped) {
  pos.gConn->run(
      "insert into member (bh, name, enabled, join_date) values ('vip9', '李雷', 1, ''),"
      " ('9', '韩梅', 1, '')");
  const std::pair<const char*, const char*> cases[] = {{"vip9", "vip9"},
                                                       {" ８００１ ", "8001"},
                                                       {";8001?", "8001"},
                                                       {";a8001?", "8001"},
                                                       {"vip8001", ""}};
  for (const auto& [typed, card] : cases) EXPECT_EQ(settlement.checkCard(typed), card) << typed;
}

TEST_F(SettlementTest, RefusedCardsChargeNothing) {
  pos.gConn->run(
      "insert into member (bh, name, card, password, enabled, join_date) values "
      "('8002', '李雷', 500, 'x', 0, '2026-01-02'), ('8003', '韩梅', 88.49, '', 1, '')");
  const struct {
    const char *number, *password;
    CardOutcome result;
    const char* said;
  } cases[] = {
      {"9999", "Pw1", kUnknown, "储值卡号错误,请重输"},
      {"8001", "pw1", kWrongPassword, "储值卡密码错误,请重输"},
      {"8002", "x", kUnknown, "会员卡被禁用！卡号：8002，持卡人：李雷"},
      {"8003", "", kTooLittle, "储值卡余额不够,请先充值"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(settlement.payByCard(each.number, each.password), each.result) << each.number;
    EXPECT_EQ(screen.said(), each.said);
  }
  bill->setAmount(Currency::fromYuan(-5));
  EXPECT_FALSE(settlement.payByCard("8001", "Pw1"));
  EXPECT_EQ(screen.said(), "应收是负数，不能用储值卡付款。");
  EXPECT_FALSE(settlement.settled());
  EXPECT_EQ(stored("sum(card) as v from member"), "676.99");
}

TEST_F(SettlementTest, CardPaysTheWholeAmountDueOnce) {
  bill->setFavorable(Currency::fromYuan(5));
  bill->setCash(Currency::fromYuan(100));
  for (const char* left : {"0", "200"}) {
    EXPECT_EQ(settlement.payByCard("8001", "Pw1"), kDone);
    EXPECT_EQ(balance(), left);
    pos.gConn->run("update member set card = 200");
  }
  EXPECT_EQ(stored("card_pay || ' ' || cash || ' ' || card_no as v from sell"), "88.5 0 8001");
  settlement.sayCardPaid();
  EXPECT_EQ(screen.said(), " 储值卡消费成功！余额：0 ");
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA0.00\r");
}

// The balance can be written, the mark of the paid bill cannot.
TEST_F(SettlementTest, APaymentThatCannotBeStoredIsNoneAndCanBeRepeated) {
  breakStore("update on sell");
  EXPECT_FALSE(settlement.payByCard("8001", "Pw1"));
  settlement.confirmCash("100");
  EXPECT_EQ(screen.said(),
            "储值卡没有扣款：数据与已有的记录冲突：disk|"
            "没有收款，请再确认一次：数据与已有的记录冲突：disk");
  EXPECT_EQ(ports.shown, "") << "shown before it was durable";

  mendStore();
  settlement.confirmCash("100");
  EXPECT_EQ(stored("paid || ' ' || cash || ' ' || card_pay as v from sell"), "1 100 0");
  EXPECT_EQ(balance(), "88.5");
  EXPECT_EQ(ports.shown, "\x1Bs3\x1BQA100.00\r");
}
