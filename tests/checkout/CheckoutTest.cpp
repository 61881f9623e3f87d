#include "CheckoutFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CheckoutTest : public CheckoutFixture {
 protected:
  std::string stockLeft() { return stored("quantity as v from stock where spbm='1001'"); }
};

TEST_F(CheckoutTest, cashSaleIsStoredSummedUpAndFollowedByTheNextBill) {
  pos.gPosSet.CVProt = "COM1";
  state.hasDisplay = true;
  display.OpenDisplayPort();
  checkout.SettleBill();
  EXPECT_THAT(screen.messages, ElementsAre("没有商品，无需结账！"));

  enter("水", "80.00");
  enter("茶", "4.25", 2);
  payCash("100");
  EXPECT_EQ(stored("state as v from sell where id=1"), "1");
  EXPECT_EQ(stored("count(*) as v from sellProducts where sellId=1"), "2");
  EXPECT_EQ(screen.status, "应收88.5 现金100银行卡0储值卡0优惠0找零11.5元");
  EXPECT_EQ(screen.title1, "流水号：2   收银员：张三");
  EXPECT_EQ(screen.title3, "上一单：金额 88.5实收现金100.0银行卡0.0储值卡0.0找零11.5  优惠0");
  EXPECT_EQ(ports.shown, "\x1Bs2\x1BQA88.50\r\x1Bs3\x1BQA100.00\r\x1Bs4\x1BQA11.50\r");
  EXPECT_THAT(state.rows, SizeIs(1));
  EXPECT_EQ(state.curLine, nullptr);
  EXPECT_EQ(state.lastBill->BillNo(), 1);
  EXPECT_TRUE(state.onEntryRow);
  EXPECT_FALSE(state.clearOnKey);
  EXPECT_EQ(stockLeft(), "97");
}

TEST_F(CheckoutTest, leftDialogKeepsTheBillWithItsFigures) {
  ASSERT_EQ(pos.gSysParam.set("RoundJiao", "1"), "");
  enter("水", "12.35");
  state.onEntryRow = false;  // the cashier is changing the line's quantity
  state.selected = 0;
  screen.pay = [](Settlement& s) { EXPECT_EQ(s.favorableChanged("2"), "2"); };
  for (int i = 0; i < 2; ++i) {
    checkout.SettleBill();
    EXPECT_EQ(state.curBill->BillNo(), 1);
    EXPECT_EQ(generalNumber(state.curBill->Amount()), "12.4");
    EXPECT_EQ(generalNumber(state.curBill->Favorable()), "2");
    EXPECT_EQ(state.rows.at(0).tag, state.curBill->Items().at(0)->Id());
    EXPECT_TRUE(state.onEntryRow);
    EXPECT_EQ(state.selected, 1);
  }
  enter("茶", "1.00");
  payCash("13.4");
  EXPECT_EQ(stored("amount as v from sell where id=1"), "13.4");
  EXPECT_EQ(stored("goods_amount as v from sell where id=1"), "13.35");
}

TEST_F(CheckoutTest, memberIsCreditedWithTheSale) {
  const struct {
    const char* unit;
    const char* price;
    const char* points;  ///< afterwards
    const char* spent;
  } cases[] = {{"10", "95.00", "12", "95"},     // 9.5 + 3: halves to even
               {"0", "5.00", "12", "100"},      // no points without a unit
               {"1", "40000", "12", "40100"}};  // more than points can hold
  for (const auto& row : cases) {
    ASSERT_EQ(pos.gSysParam.set("PointUnit", row.unit), "");
    attachMember();
    enter("酒", row.price);
    checkout.SettleBill();
    EXPECT_EQ(stored("points as v from member"), row.points);
    EXPECT_EQ(stored("total_spent as v from member"), row.spent);
    EXPECT_EQ(state.curMember, nullptr);
    EXPECT_EQ(screen.memberInfo, "");
  }
  EXPECT_EQ(stored("card as v from member"), "88.5");
}

TEST_F(CheckoutTest, memberThatCannotBeCreditedDoesNotCostTheSale) {
  breakStore("member");
  attachMember();
  enter("酒", "95.00");
  checkout.SettleBill();
  EXPECT_EQ(stored("state as v from sell where id=1"), "1");
  EXPECT_EQ(stored("total_spent as v from member"), "0");
  EXPECT_THAT(screen.messages, IsEmpty());
}

TEST_F(CheckoutTest, saleThatCannotBeStoredIsDroppedAndItsStockPutBack) {
  pos.gPosSet.PPort = "USB";
  pos.gPosSet.printAmount = "直接打印2联";
  enter("茶", "1.00");
  payCash("1");
  EXPECT_EQ(pagesPrinted(), 2U);

  breakStore("sell when new.state = 1");
  attachMember();
  enter("水", "12.00", 3);
  payCash("12");
  EXPECT_THAT(screen.messages, ElementsAre("保存单据出错，请重新录入本单！"));
  EXPECT_EQ(pagesPrinted(), 2U);
  EXPECT_EQ(stored("count(*) as v from sell where id=2"), "0");
  EXPECT_EQ(stockLeft(), "99");
  EXPECT_EQ(stored("total_spent as v from member"), "0");
  EXPECT_EQ(state.lastBill->BillNo(), 1);
  EXPECT_EQ(state.curBill->BillNo(), 3);
}

TEST_F(CheckoutTest, aPaidBillThatCannotBeStoredIsWithdrawnBeforeAnythingElseIsStored) {
  breakStore("sell when new.state = 1");
  pos.gConn->runScript(
      "create trigger stuck before delete on sell begin select raise(abort, 'disk'); end");
  enter("水", "12.00", 3);
  screen.pay = [](Settlement& s) {
    EXPECT_EQ(s.payByCard("8001", "Pw1"), Settlement::CardResult::kPaid);
  };
  bool billOpened = false;
  screen.asked = [&] {
    billOpened = stored("count(*) as v from sell") != "1";
    if (screen.messages.size() == 3) pos.gConn->runScript("drop trigger stuck");
  };
  checkout.SettleBill();
  EXPECT_FALSE(billOpened);
  ASSERT_THAT(screen.messages, SizeIs(3));
  EXPECT_EQ(screen.messages[0], "保存单据出错，请重新录入本单！\n储值卡 8001 已扣款 36 元。");
  EXPECT_THAT(screen.messages[1], testing::HasSubstr("不能开始下一单"));
  EXPECT_EQ(stored("group_concat(id || ':' || paid) as v from sell"), "2:0");
  EXPECT_EQ(stockLeft(), "100");
  EXPECT_EQ(stored("card as v from member"), "52.5");
  EXPECT_FALSE(screen.ended);
}

TEST_F(CheckoutTest, aProgramThatEndsBeforeTheWithdrawalLeavesTheBillToBeCompleted) {
  breakStore("sell when new.state = 1");
  pos.gConn->runScript(
      "create trigger stuck before delete on sell begin select raise(abort, 'disk'); end");
  enter("水", "12.00");
  screen.answersYes = false;
  payCash("12");
  EXPECT_TRUE(screen.ended);
  EXPECT_EQ(state.curBill, nullptr);
  EXPECT_EQ(stored("group_concat(id || ':' || paid) as v from sell"), "1:1");
}

TEST_F(CheckoutTest, voidedBillPutsStockBackInSaleUnits) {
  enter("整箱水", "24.00", 2);
  state.curLine->setRatio(12);
  ASSERT_TRUE(TakeStock(pos, screen, "1001", 22, [] {}));
  commitCurrentLine(state, receipt);
  VoidBill(pos, screen, *state.curBill);
  EXPECT_EQ(stockLeft(), "100");
  EXPECT_EQ(stored("count(*) as v from sellProducts"), "0");
}

TEST_F(CheckoutTest, pageReceiptsFollowTheMode) {
  const struct {
    const char* port;
    const char* mode;
    bool answer;
    std::size_t pages;
    const char* question;
  } cases[] = {{"USB", "不打印", true, 0, ""},
               {"USB", "直接打印1联", true, 1, ""},
               {"USB", "直接打印3联", true, 3, ""},
               {"USB", "打印前提示默认'是'", true, 1, "提示:确定要打印吗 是"},
               {"USB", "打印前提示默认'否'", false, 0, "提示:确定要打印吗 否"},
               {"USB", "", true, 0, ""},
               {"", "直接打印3联", true, 0, ""}};
  std::size_t printed = 0;
  for (const auto& row : cases) {
    screen.messages.clear();
    screen.answersYes = row.answer;
    pos.gPosSet.PPort = row.port;
    pos.gPosSet.printAmount = row.mode;
    enter("水", "1.00");
    checkout.SettleBill();
    printed += row.pages;
    EXPECT_EQ(pagesPrinted(), printed) << row.mode;
    EXPECT_EQ(screen.messages.empty() ? "" : screen.messages.front(), row.question);
  }
  pos.configIni.write("Ports", "USB", folder.file("missing"));
  pos.gPosSet.PPort = "USB";
  pos.gPosSet.printAmount = "直接打印3联";
  screen.messages.clear();
  enter("水", "1.00");
  checkout.SettleBill();
  EXPECT_THAT(screen.messages, SizeIs(1));
}

TEST_F(CheckoutTest, clockBehindTheLastBillEndsTheProgram) {
  enter("水", "1.00");
  commitCurrentLine(state, receipt);  // dates the bill
  now.date.day = 21;
  checkout.SettleBill();
  EXPECT_TRUE(screen.ended);
  EXPECT_THAT(screen.messages, ElementsAre("日期或时间错误！将退出销售，请与管理员联系"));
}

TEST_F(CheckoutTest, memberInfoTellsTheLatestPurchase) {
  attachMember();
  checkout.ShowMemberInfo();
  EXPECT_EQ(screen.memberInfo, "会员：王芳，办卡日期：2026-01-02，累计消费：0.00");
  enter("水", "1.50");
  enter("茶", "4.00");
  checkout.SettleBill();
  attachMember();
  checkout.ShowMemberInfo();
  EXPECT_EQ(screen.memberInfo,
            "会员：王芳，办卡日期：2026-01-02，累计消费：5.50\n"
            "最近消费时间：2026-11-22 09:05:03，金额：5.50\n最近购买商品：水、茶");
}
