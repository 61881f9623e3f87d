#include "TillFixture.h"
#include "base/NumberText.h"

using testing::HasSubstr;
using testing::SizeIs;

/// From the settle key to the next bill.
class CheckoutTest : public TillFixture {
 protected:
  CheckoutTest() { open(); }

  /// A line at that price, as often.
  void ring(const char* price, int times = 1) {
    for (int i = 0; i < times; ++i) {
      till.answers = {price};
      enter(kNoPrice);
    }
  }
  void settle() { press(kF1); }
  /// With the settings as they are now.
  void reopen() {
    press(kEsc);
    open();
  }
  void payCash(const char* cash) {
    till.pay = [cash](Settlement& s) { s.confirmCash(cash); };
    settle();
  }
  void attachMember() {
    till.question = "会员卡输入会员卡号或电话：";
    till.answers = {"8001"};
    press(kF2);
    till.question.clear();
  }
};

TEST_F(CheckoutTest, cashSaleIsStoredSummedUpAndFollowedByTheNextBill) {
  pos.gPosSet.CVProt = "COM1";
  reopen();
  ring("80.00");
  ring("4.25", 2);
  payCash("100");
  EXPECT_EQ(stored("state as v from sell where id=2"), "1");
  EXPECT_EQ(till.status, "应收88.5 现金100银行卡0储值卡0优惠0找零11.5元");
  EXPECT_EQ(till.title1, "流水号：3   收银员：张三");
  EXPECT_EQ(till.title3, "上一单：金额 88.5实收现金100.0银行卡0.0储值卡0.0找零11.5  优惠0");
  EXPECT_THAT(ports.shown,
              testing::EndsWith("\x1Bs2\x1BQA88.50\r\x1Bs3\x1BQA100.00\r\x1Bs4\x1BQA11.50\r"));
  EXPECT_THAT(till.rows, SizeIs(1));
}

TEST_F(CheckoutTest, leftDialogKeepsTheBillWithItsFigures) {
  setParameter("RoundYuan", "1");
  till.pay = [](Settlement& s) { EXPECT_EQ(s.figureChanged(Tender::kFavorable, "2"), "2"); };
  for (const char* due : {"12", "25", "38", "50"}) {  // halves to even, of all lines each time
    ring("12.50");
    press(kUp);  // the cashier is changing the line's quantity
    for (int settling = 0; settling < 2; ++settling) {
      settle();
      EXPECT_EQ(generalNumber(bill().Amount()), due);
      EXPECT_EQ(generalNumber(bill().Favorable()), "2");
      EXPECT_TRUE(session.sale().onEntryRow());
    }
  }
  EXPECT_EQ(bill().BillNo(), 1);
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
    ring(each.price);
    settle();
    EXPECT_EQ(stored("points || ' ' || total_spent as v from member"), each.credited);
    EXPECT_EQ(till.said(), "") << "a sale is not lost with its points";
  }
  breakStore("update on member");
  attachMember();
  ring("95.00");
  settle();
  EXPECT_EQ(stored("state as v from sell where id=5"), "1");
}

TEST_F(CheckoutTest, figuresThatDoNotFitAreRefusedAndThoseOfTheFileSaid) {
  const char* const huge = "900000000000000";
  ring("1.00");
  till.pay = [&](Settlement& s) {
    EXPECT_EQ(s.figureChanged(Tender::kFavorable, huge), huge);
    s.confirmCash(huge);
    EXPECT_EQ(s.figureChanged(Tender::kBankCard, huge), huge);
    EXPECT_FALSE(s.payByCard("8001", "Pw1"));
  };
  settle();
  EXPECT_EQ(till.said(), "没有收款：金额太大，找零算不出来。|没有收款：金额太大，找零算不出来。");
  EXPECT_EQ(stored("paid || ' ' || (select card from member) as v from sell"), "0 88.5");

  press(kF12);
  pos.gConn->runScript(  // as an earlier program stored it
      "insert into sell (sell_time, operator_id, state, amount, cash, bank_card) values"
      " ('2026-11-22 09:05:03', 1, 1, -1, 922337203685477, 1)");
  reopen();
  EXPECT_THAT(till.title3, HasSubstr("找零超出范围"));
}

TEST_F(CheckoutTest, aPaidBillThatCannotBeStoredIsWithdrawnBeforeAnythingElseIsStored) {
  pos.gPosSet.PPort = "USB";
  pos.gPosSet.printAmount = "直接打印1联";
  reopen();
  breakStore("update on sell when new.state = 1");
  breakStore("delete on sell", "stuck");
  ring("12.00", 3);
  till.pay = [](Settlement& s) { EXPECT_EQ(s.payByCard("8001", "Pw1"), CardOutcome::kDone); };
  int asked = 0;
  till.asked = [&] {
    EXPECT_EQ(stored("count(*) as v from sell"), "1") << "no other bill opened";
    if (++asked == 2) mendStore("stuck");
  };
  settle();
  EXPECT_EQ(till.messages.at(0), "保存单据出错，请重新录入本单！\n储值卡 8001 已扣款 36 元。");
  EXPECT_THAT(till.messages.at(1), HasSubstr("不能开始下一单"));
  EXPECT_EQ(stored("group_concat(id || ':' || paid) as v from sell"), "3:0");
  EXPECT_EQ(stock() + " " + stored("card as v from member"), "100 52.5");
  EXPECT_THAT(ports.pages, testing::IsEmpty());
}

TEST_F(CheckoutTest, noPaymentIsTakenIntoAFileThatLostItsName) {
  const std::filesystem::path file = pos.gConn->source().path;
  ring("1.00");
  std::filesystem::rename(file, folder.file("away"));
  till.pay = [](Settlement&) { ADD_FAILURE() << "the cashier is asked for money"; };
  till.answersYes = false;
  settle();
  EXPECT_TRUE(std::exchange(till.ended, false));
  EXPECT_THAT(till.said(), HasSubstr("删除、移走"));
  till.answersYes = true;
  till.asked = [&] { std::filesystem::rename(folder.file("away"), file); };
  payCash("1");
  EXPECT_EQ(stored("state as v from sell where id=1"), "1");
}

TEST_F(CheckoutTest, anOperatorRemovedMeanwhileSettlesAndOpensNoFurtherBill) {
  ring("1.00");
  pos.gConn->runScript("delete from operators where id = 1");
  till.answersYes = false;
  settle();
  EXPECT_THAT(till.said(), HasSubstr("不能开始下一单：操作员“张三”已被删除，不能再开单。"));
  EXPECT_EQ(stored("group_concat(id || ':' || state) as v from sell"), "1:1");
  EXPECT_TRUE(till.ended);
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
    till.answersYes = each.answer;
    pos.gPosSet.PPort = each.port;
    pos.gPosSet.printAmount = each.mode;
    reopen();
    ring("1.00");
    settle();
    EXPECT_EQ(ports.pages.size(), printed += each.pages) << each.mode;
    EXPECT_EQ(till.said(), each.question);
  }
}

TEST_F(CheckoutTest, clockBehindTheLastBillEndsTheProgram) {
  now.date.day = 21;
  ring("1.00");
  settle();
  EXPECT_TRUE(till.ended);
  EXPECT_EQ(till.said(), "日期或时间错误！将退出销售，请与管理员联系");
}
