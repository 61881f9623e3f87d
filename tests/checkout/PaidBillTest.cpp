#include "checkout/PaidBill.h"

#include "CheckoutFixture.h"
#include "saleslib/ClsDayStat.h"

/// The plug is pulled between the confirmation of a payment and the stored bill.
class PaidBillTest : public CheckoutFixture {
 protected:
  void cutAfterCash(const char* favorable) {
    Settlement taken = settlement();
    static_cast<void>(taken.figureChanged(Tender::kFavorable, favorable));
    taken.confirmCash("20");
  }
};

TEST_F(PaidBillTest, OfAnotherOperatorIsCompletedOnceWithItsRoundingAndNotVoided) {
  setParameter("RoundJiao", "1");
  pos.gOperator->Init(*pos.gConn, 2);
  openNext();
  enter("水", "12.33");
  enter("茶", "4.00");
  bill->setAmount(Currency::parse("16.30").value());
  cutAfterCash("1.3");
  ClsDayStat unpaid;
  unpaid.OpenQuery(*pos.gConn, 2);
  EXPECT_THAT(unpaid.Sells(), testing::IsEmpty()) << "what is open and unpaid is voided";

  pos.gOperator->Init(*pos.gConn, 1);
  for (int opening = 0; opening < 2; ++opening) completePaidBills(books, screen);
  EXPECT_EQ(screen.said(),
            "上次程序中断前已收款的单据，现在已补存，请勿重新录入：\n流水号 2，金额 16.30");
  EXPECT_EQ(stored("state || paid || ' ' || amount || ' of ' || goods_amount || ', ' || favorable"
                   " || ' off' as v from sell where id = 2"),
            "10 16.3 of 16.33, 1.3 off");
}

TEST_F(PaidBillTest, ThatCannotBeCompletedWaitsAndLetsOthersPass) {
  for (const char* price : {"1.00", "2.00"}) {
    openNext();
    enter("水", price);
    cutAfterCash("0");
  }
  const auto damage = [this](const char* quantity) {
    pos.gConn->runScript("update sellProducts set amount = " + std::string(quantity) +
                         " where sellId = 2");
  };
  damage("5");
  completePaidBills(books, screen);
  EXPECT_EQ(stored("group_concat(id || state || paid) as v from sell"), "100,201,310");
  EXPECT_EQ(screen.said(),
            "上次程序中断前已收款的单据，现在已补存，请勿重新录入：\n流水号 3，金额 2.00|"
            "已收款的单据还不能补存，请与管理员联系：\n流水号 2，金额 1.00："
            "单据 2 的商品明细与合计不符，数据文件可能已损坏，请与管理员联系！");
  damage("1");
  completePaidBills(books, screen);
  EXPECT_EQ(stored("group_concat(id || state || paid) as v from sell"), "100,210,310");
}
