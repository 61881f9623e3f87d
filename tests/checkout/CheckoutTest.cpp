#include "CheckoutFixture.h"

using testing::HasSubstr;
using testing::SizeIs;

using CheckoutTest = CheckoutFixture;

TEST_F(CheckoutTest, cashSaleIsStoredSummedUpAndFollowedByTheNextBill) {
  showOn("COM1");
  enter("水", "80.00");
  enter("茶", "4.25", 2);
  payCash("100");
  EXPECT_EQ(stored("state as v from sell where id=1"), "1");
  EXPECT_EQ(screen.title1, "流水号：2   收银员：张三");
  EXPECT_EQ(ports.shown, "\x1Bs2\x1BQA88.50\r\x1Bs3\x1BQA100.00\r\x1Bs4\x1BQA11.50\r");
  EXPECT_THAT(state.rows, SizeIs(1));
  EXPECT_FALSE(state.clearOnKey) << "what is typed next would be taken for a correction";
}

TEST_F(CheckoutTest, leftDialogKeepsTheBillWithItsFigures) {
  setParameter("RoundYuan", "1");
  screen.pay = [](Settlement& s) { EXPECT_EQ(s.figureChanged(Tender::kFavorable, "2"), "2"); };
  for (const char* due : {"12", "25", "38", "50"}) {  // halves to even, of all lines each time
    enter("水", "12.50");
    state.onEntryRow = false;  // the cashier is changing the line's quantity
    --state.selected;
    for (int settling = 0; settling < 2; ++settling) {
      checkout.SettleBill();
      EXPECT_EQ(generalNumber(state.curBill->Amount()), due);
      EXPECT_EQ(generalNumber(state.curBill->Favorable()), "2");
      EXPECT_EQ(state.rows.end()[-2].tag, state.curBill->Items().back()->Id());
      EXPECT_TRUE(state.onEntryRow);
    }
  }
  EXPECT_EQ(state.curBill->BillNo(), 1);
}

TEST_F(CheckoutTest, memberIsCreditedWithTheSale) {
  const struct {
    const char *unit, *price, *credited;               ///< points and purchases afterwards
  } cases[] = {{"10", "95.00", "12 95"},               // 9.5 + 3: halves to even
               {"0", "5.00", "12 100"},                // no points without a unit
               {"1", "40000", "12 40100"},             // more than points can hold
               {"1", "922337203685477", "12 40100"}};  // or purchases
  for (const auto& each : cases) {
    setParameter("PointUnit", each.unit);
    attachMember();
    enter("酒", each.price);
    checkout.SettleBill();
    EXPECT_EQ(stored("points || ' ' || total_spent as v from member"), each.credited);
    EXPECT_EQ(screen.said(), "") << "a sale is not lost with its points";
  }
  breakStore("update on member");
  attachMember();
  enter("酒", "95.00");
  checkout.SettleBill();
  EXPECT_EQ(stored("state as v from sell where id=5"), "1");
}

TEST_F(CheckoutTest, figuresThatDoNotFitAreRefusedAndThoseOfTheFileSaid) {
  const char* const huge = "900000000000000";
  enter("水", "1.00");
  screen.pay = [&](Settlement& s) {
    EXPECT_EQ(s.figureChanged(Tender::kFavorable, huge), huge);
    s.confirmCash(huge);
    EXPECT_EQ(s.figureChanged(Tender::kBankCard, huge), huge);
    EXPECT_FALSE(s.payByCard("8001", "Pw1"));
  };
  checkout.SettleBill();
  EXPECT_EQ(screen.said(), "没有收款：金额太大，找零算不出来。|没有收款：金额太大，找零算不出来。");
  EXPECT_EQ(stored("paid || ' ' || (select card from member) as v from sell"), "0 88.5");

  state.lastBill = std::make_shared<ClsSell>(*state.curBill);  // as an earlier program stored it
  state.lastBill->setCash(Currency::parse(huge).value());
  checkout.PrepareNextBill();
  EXPECT_THAT(screen.title3, HasSubstr("找零超出范围"));
}

TEST_F(CheckoutTest, aPaidBillThatCannotBeStoredIsWithdrawnBeforeAnythingElseIsStored) {
  pos.gPosSet.PPort = "USB";
  pos.gPosSet.printAmount = "直接打印1联";
  breakStore("update on sell when new.state = 1");
  breakStore("delete on sell", "stuck");
  enter("水", "12.00", 3);
  screen.pay = [](Settlement& s) { EXPECT_EQ(s.payByCard("8001", "Pw1"), CardOutcome::kDone); };
  int asked = 0;
  screen.asked = [&] {
    EXPECT_EQ(stored("count(*) as v from sell"), "1") << "no other bill opened";
    if (++asked == 2) mendStore("stuck");
  };
  checkout.SettleBill();
  EXPECT_EQ(screen.messages.at(0), "保存单据出错，请重新录入本单！\n储值卡 8001 已扣款 36 元。");
  EXPECT_THAT(screen.messages.at(1), HasSubstr("不能开始下一单"));
  EXPECT_EQ(stored("group_concat(id || ':' || paid) as v from sell"), "2:0");
  EXPECT_EQ(stock() + " " + stored("card as v from member"), "100 52.5");
  EXPECT_EQ(pagesPrinted(), 0U);
}

TEST_F(CheckoutTest, noPaymentIsTakenIntoAFileThatLostItsName) {
  const std::filesystem::path file = pos.gConn->source().path;
  enter("水", "1.00");
  std::filesystem::rename(file, folder.file("away"));
  screen.pay = [](Settlement&) { ADD_FAILURE() << "the cashier is asked for money"; };
  screen.answersYes = false;
  checkout.SettleBill();
  EXPECT_TRUE(std::exchange(screen.ended, false));
  EXPECT_THAT(screen.said(), HasSubstr("删除、移走"));
  screen.answersYes = true;
  screen.asked = [&] { std::filesystem::rename(folder.file("away"), file); };
  payCash("1");
  EXPECT_EQ(stored("state as v from sell where id=1"), "1");
}

TEST_F(CheckoutTest, anOperatorRemovedMeanwhileSettlesAndOpensNoFurtherBill) {
  enter("水", "1.00");
  pos.gConn->runScript("delete from operators where id = 1");
  screen.answersYes = false;
  checkout.SettleBill();
  EXPECT_THAT(screen.said(), HasSubstr("不能开始下一单：操作员“张三”已被删除，不能再开单。"));
  EXPECT_EQ(stored("group_concat(id || ':' || state) as v from sell"), "1:1");
  EXPECT_TRUE(screen.ended);
}

TEST_F(CheckoutTest, pageReceiptsFollowTheMode) {
  const struct {
    const char *port, *mode;
    bool answer;
    std::size_t pages;
    const char* question;
  } cases[] = {{"USB", "不打印", true, 0, ""},
               {"USB", "直接打印1联", true, 1, ""},
               {"USB", "直接打印3联", true, 3, ""},
               {"USB", "打印前提示默认'是'", true, 1, "提示:确定要打印吗 是"},
               {"USB", "打印前提示默认'否'", false, 0, "提示:确定要打印吗 否"},
               {"", "直接打印3联", true, 0, ""}};
  std::size_t printed = 0;
  for (const auto& each : cases) {
    screen.answersYes = each.answer;
    pos.gPosSet.PPort = each.port;
    pos.gPosSet.printAmount = each.mode;
    enter("水", "1.00");
    checkout.SettleBill();
    EXPECT_EQ(pagesPrinted(), printed += each.pages) << each.mode;
    EXPECT_EQ(screen.said(), each.question);
  }
}

TEST_F(CheckoutTest, clockBehindTheLastBillEndsTheProgram) {
  now.date.day = 21;
  enter("水", "1.00");
  checkout.SettleBill();
  EXPECT_TRUE(screen.ended);
  EXPECT_EQ(screen.said(), "日期或时间错误！将退出销售，请与管理员联系");
}
