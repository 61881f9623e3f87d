#include <QClipboard>
#include <QGuiApplication>

#include "CheckoutFixture.h"
#include "Hands.h"
#include "checkout/frmEndSell.h"
#include "saleslib/CardAuthority.h"

/// The dialog with a bill of 88.5, driven by real key events while it is shown.
class frmEndSellTest : public CheckoutFixture {
 protected:
  static constexpr const char* kWindow = "frmEndSell";

  frmEndSellTest() { enter("水", "88.50"); }

  /// Shows the dialog, and gives whether payment was confirmed.
  bool pay() {
    Settlement settlement = CheckoutFixture::settlement();
    const bool isPaid = dialog.init(settlement);
    EXPECT_TRUE(hands.idle());
    return isPaid;
  }
  Hands& type(const char* keys) { return hands.type(kWindow, keys); }

  frmEndSell dialog{pos.gKeyBoard};
  Hands hands;
};

TEST_F(frmEndSellTest, TheCashFigureReplacesTheAmountDueAndShowsTheChange) {
  hands.see(kWindow, "title Money PCount txtInMoney lbl1 favorable salesman yhk czk mima",
            "单号：1结账时间：09:05收银员：张三|88.50|共 1 件商品|88.5|0.0|0|0|0||@txtInMoney");
  type("100").see("txtInMoney lbl1", "100|11.5@txtInMoney");
  type("x").see("txtInMoney lbl1", "100x|11.5@txtInMoney");
  type("\b").press(kWindow, {Qt::Key_F1});
  EXPECT_TRUE(pay());
  EXPECT_EQ(bill->Cash(), Currency::fromYuan(100));
}

TEST_F(frmEndSellTest, OtherFieldsAreReachedByTabAndLeftByEnter) {
  for (const char* focus : {"0.0@favorable", "0.0@salesman", "0.0@yhk", "0.0@czk", "0.0@mima",
                            "0.0@txtInMoney", "0.0@favorable"}) {
    type("\t").see("lbl1", focus);
  }
  type("5\b").see("favorable", "0@favorable");
  type("3⎋").see("favorable lbl1", "3|3.0@favorable");  // the change follows
  type("\n⎋");
  EXPECT_FALSE(pay());
  EXPECT_EQ(generalNumber(bill->Favorable()), "3");
  // Opened again: what the bill holds, and nothing of the dialog before.
  hands.see(kWindow, "txtInMoney favorable", "88.5|3@txtInMoney").at(kWindow, [](QWidget& shown) {
    shown.close();
  });
  EXPECT_FALSE(pay());
}

TEST_F(frmEndSellTest, ThePhonePaysBehindTheBankCardWhereTheShopTakesIt) {
  setParameter("PhonePay", "1");
  type("\t\t\t\t88.5\t28AB 01 \n").see("sm smbh", "88.5|28AB 01@txtInMoney");
  type("0").see("lbl1", "0.0@txtInMoney").type("\n");
  EXPECT_TRUE(pay());
  EXPECT_EQ(stored("phone_pay || ' ' || phone_slip as v from sell"), "88.5 28AB 01");
}

TEST_F(frmEndSellTest, MappedKeysCountAndTheEnterKeyAlwaysDoes) {
  pos.gKeyBoard.mEnter = 107;  // the "+" of the numeric pad
  pos.gKeyBoard.mEsc = 120;    // F9
  type("⎋")
      .see("lblHint",
           "现金栏：小键盘 + 收款，F9 返回单据；Tab 转到优惠、业务员、银行卡、储值卡@txtInMoney")
      .press(kWindow, {Qt::Key_F9});
  EXPECT_FALSE(pay());
  hands.at(kWindow, [](QWidget& shown) {
    QTest::keyClick(shown.focusWidget(), Qt::Key_Plus, Qt::KeypadModifier);
  });
  EXPECT_TRUE(pay());
  type("\n");
  EXPECT_TRUE(pay());
}

TEST_F(frmEndSellTest, AStoredValueCardPays) {
  type("\t\t\t\t9999\n").see("czk", "9999@czk");
  type("8001\n").see("czk", "8001@mima");
  type("wrong\n").see("mima", "wrong@mima");
  hands.at(kWindow, [](QWidget& shown) {
    QGuiApplication::clipboard()->setText("before");
    for (const auto copying : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut}) {
      QTest::keySequence(shown.focusWidget(), copying);
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
  });
  type("Pw1\n");
  EXPECT_TRUE(pay());
  EXPECT_EQ(screen.said(), "储值卡号错误,请重输|储值卡密码错误,请重输| 储值卡消费成功！余额：0 ");
  EXPECT_EQ(Hands::textsOf(dialog, "mima").substr(0, 1), "@");
  EXPECT_EQ(stored("card as v from member"), "0");
}

TEST_F(frmEndSellTest, CashPaysWhereNobodyAnswersForACard) {
  struct Away : CardAuthority {
    bool isAway() const override { return true; }
    Answer charge(const Charge& /*charge*/) override { return {}; }
  } server;
  BillBooks till(*pos.gConn, pos.gSysParam, pos.clock, pos.gOperator, &server);
  Settlement settlement(till, *bill, devices.display(), screen, [] {});
  type("\t\t\t\t8001\n").type("Pw1\n").see("txtInMoney", "88.5@txtInMoney").type("\n");
  EXPECT_TRUE(dialog.init(settlement));
  EXPECT_EQ(screen.said(), "储值卡没有回应，请改用其它方式付款");
  EXPECT_EQ(stored("cash || ' ' || card_pay || ' ' || card as v from sell, member"), "88.5 0 88.5");
}
