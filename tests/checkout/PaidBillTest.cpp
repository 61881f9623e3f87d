#include "CheckoutFixture.h"
#include "checkout/PaidBill.h"
#include "saleslib/ClsDayStat.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The plug is pulled between the confirmation of a payment and the stored bill.
class PaidBill : public CheckoutFixture {
 protected:
  struct PowerCut {};

  void cutAfter(const std::function<void(Settlement&)>& payment) {
    screen.pay = [&](Settlement& s) {
      payment(s);
      EXPECT_TRUE(s.settled());
      throw PowerCut();
    };
    EXPECT_THROW(checkout.SettleBill(), PowerCut);
    state = SaleState();
    screen.messages.clear();
  }
  std::string books() {
    return stored("group_concat(id || ' state ' || state || ' paid ' || paid) as v from sell") +
           "; " + stored("total_spent || ' spent ' || points || ' points' as v from member");
  }
};

TEST_F(PaidBill, IsCompletedOnceWithItsFiguresAndItsMember) {
  ASSERT_EQ(pos.gSysParam.set("RoundJiao", "1"), "");
  ASSERT_EQ(pos.gSysParam.set("PointUnit", "1"), "");
  attachMember();
  enter("水", "12.33");
  enter("茶", "4.00");
  cutAfter([](Settlement& s) {
    static_cast<void>(s.favorableChanged("1.3"));
    s.confirmCash("20");
  });
  EXPECT_EQ(books(), "1 state 0 paid 1; 0 spent 3 points");

  for (int opening = 0; opening < 2; ++opening) {
    completePaidBills(pos, screen);
    EXPECT_EQ(books(), "1 state 1 paid 0; 16.3 spent 19 points");
  }
  EXPECT_THAT(screen.messages, ElementsAre("上次程序中断前已收款的单据，现在已补存，请勿重新录入："
                                           "\n流水号 1，金额 16.30"));
  ClsSell bill;
  ASSERT_TRUE(bill.Open(*pos.gConn, 1, 1));
  EXPECT_NO_THROW(bill.LoadLines());
  EXPECT_EQ(twoDecimals(bill.Amount()) + " of " + twoDecimals(bill.GoodsAmount()),
            "16.30 of 16.33");
  EXPECT_EQ(generalNumber(bill.Change()), "5");
  EXPECT_EQ(stored("quantity as v from stock where spbm='1001'"), "98");
}

TEST_F(PaidBill, OfTheCardAndOfAnotherOperatorIsCompletedAndNotVoided) {
  pos.gOperator->Init(*pos.gConn, 7);
  checkout.PrepareNextBill();
  enter("水", "8.50");
  cutAfter(
      [](Settlement& s) { EXPECT_EQ(s.payByCard("8001", "Pw1"), Settlement::CardResult::kPaid); });
  pos.gOperator->Init(*pos.gConn, 1);

  ClsDayStat unpaid;
  unpaid.OpenQuery(*pos.gConn, 7);
  EXPECT_THAT(unpaid.Sells(), IsEmpty()) << "what is open and unpaid is voided";
  unpaid.OpenQuery(*pos.gConn, 1);
  ASSERT_EQ(unpaid.Sells().size(), 1U) << "the bill that was only opened";
  completePaidBills(pos, screen);
  EXPECT_EQ(stored("state || card_no || ':' || card_pay as v from sell where id = 2"), "18001:8.5");
  EXPECT_EQ(stored("card as v from member"), "80");
  EXPECT_THAT(screen.messages, ElementsAre(HasSubstr("流水号 2，金额 8.50")));
}

TEST_F(PaidBill, ThatCannotBeCompletedWaitsAndLetsOthersPass) {
  for (const char* price : {"1.00", "2.00"}) {
    checkout.PrepareNextBill();
    enter("水", price);
    cutAfter([](Settlement& s) { s.confirmCash("9"); });
  }
  pos.gConn->run("update sellProducts set amount = 5 where sellId = 2");
  completePaidBills(pos, screen);
  EXPECT_EQ(stored("group_concat(id || state || paid) as v from sell"), "100,201,310");
  EXPECT_THAT(screen.messages, ElementsAre(HasSubstr("流水号 3"),
                                           HasSubstr("流水号 2，金额 1.00：单据 2 的商品明细")));

  pos.gConn->run("update sellProducts set amount = 1 where sellId = 2");
  breakStore("sell");
  completePaidBills(pos, screen);
  EXPECT_EQ(screen.messages.size(), 3U);
  pos.gConn->runScript("drop trigger broken");
  screen.messages.clear();
  completePaidBills(pos, screen);
  EXPECT_EQ(stored("state as v from sell where id = 2"), "1");
  screen.messages.clear();
  completePaidBills(pos, screen);
  EXPECT_THAT(screen.messages, IsEmpty());
}
