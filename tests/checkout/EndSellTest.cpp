#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "CheckoutFixture.h"
#include "checkout/frmEndSell.h"

/// The dialog with a bill of 88.5, driven by real key events while it is shown.
class EndSell : public CheckoutFixture {
 protected:
  EndSell() { enter("水", "88.50"); }

  /// Shows the dialog, lets the cashier act, and gives whether payment was confirmed.
  bool show(const std::function<void()>& cashier) {
    Settlement settlement = CheckoutFixture::settlement();
    QTimer::singleShot(0, &dialog, [&] {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
      EXPECT_EQ(focused(), "txtInMoney");
      cashier();
      EXPECT_FALSE(dialog.isVisible());
      dialog.close();
    });
    return dialog.init(settlement);
  }
  void press(Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); }
  void type(const char* text) { QTest::keyClicks(dialog.focusWidget(), text); }
  QString focused() const { return dialog.focusWidget()->objectName(); }
  QString fieldText(const char* name) const { return dialog.findChild<QLineEdit*>(name)->text(); }
  QString labelText(const char* name) const { return dialog.findChild<QLabel*>(name)->text(); }

  frmEndSell dialog{pos.gKeyBoard};
};

TEST_F(EndSell, cashFigureReplacesTheAmountDueAndShowsTheChange) {
  EXPECT_TRUE(show([this] {
    EXPECT_EQ(labelText("title"), "单号：1结账时间：09:05收银员：张三");
    EXPECT_EQ(labelText("Money") + labelText("PCount"), "88.50共 1 件商品");
    EXPECT_EQ(fieldText("txtInMoney") + " " + labelText("lbl1"), "88.5 0.0");
    type("100");
    EXPECT_EQ(fieldText("txtInMoney") + " " + labelText("lbl1"), "100 11.5");
    type("x");
    EXPECT_EQ(labelText("lbl1"), "11.5");
    press(Qt::Key_Backspace);
    press(Qt::Key_F1);
  }));
  EXPECT_EQ(bill->Cash(), Currency::fromYuan(100));
}

TEST_F(EndSell, otherFieldsAreReachedByTabAndLeftByEnter) {
  EXPECT_FALSE(show([this] {
    for (const char* name : {"favorable", "salesman", "yhk", "czk", "mima", "txtInMoney"}) {
      press(Qt::Key_Tab);
      EXPECT_EQ(focused(), name);
    }
    press(Qt::Key_Tab);
    type("5");
    press(Qt::Key_Backspace);
    EXPECT_EQ(fieldText("favorable"), "0");
    type("3");
    EXPECT_EQ(labelText("lbl1"), "3.0") << "the change follows";
    press(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    press(Qt::Key_Enter);
    EXPECT_EQ(focused(), "txtInMoney");
    press(Qt::Key_Escape);
  }));
  EXPECT_EQ(generalNumber(bill->Favorable()), "3");
  // Opened again: what the bill holds, and nothing of the dialog before.
  EXPECT_FALSE(show([this] {
    EXPECT_EQ(fieldText("favorable"), "3");
    dialog.close();
  }));
}

TEST_F(EndSell, thePhonePaysBehindTheBankCardWhereTheShopTakesIt) {
  setParameter("PhonePay", "1");
  EXPECT_TRUE(show([this] {
    for (const char* name : {"favorable", "salesman", "yhk", "sm"}) {
      press(Qt::Key_Tab);
      EXPECT_EQ(focused(), name);
    }
    type("88.5");
    press(Qt::Key_Tab);
    type("28AB 01 ");
    press(Qt::Key_Return);
    EXPECT_EQ(fieldText("smbh") + " " + focused(), "28AB 01 txtInMoney");
    type("0");
    EXPECT_EQ(labelText("lbl1"), "0.0");
    press(Qt::Key_Return);
  }));
  EXPECT_EQ(stored("phone_pay || ' ' || phone_slip as v from sell"), "88.5 28AB 01");
}

TEST_F(EndSell, mappedKeysCountAndTheEnterKeyAlwaysDoes) {
  pos.gKeyBoard.mEnter = 107;  // the "+" of the numeric pad
  pos.gKeyBoard.mEsc = 120;    // F9
  EXPECT_FALSE(show([this] {
    press(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(labelText("lblHint").startsWith("现金栏：小键盘 + 收款，F9 返回单据"));
    press(Qt::Key_F9);
  }));
  EXPECT_TRUE(
      show([this] { QTest::keyClick(dialog.focusWidget(), Qt::Key_Plus, Qt::KeypadModifier); }));
  EXPECT_TRUE(show([this] { press(Qt::Key_Return); }));
}

TEST_F(EndSell, storedValueCardPays) {
  EXPECT_TRUE(show([this] {
    dialog.findChild<QLineEdit*>("czk")->setFocus();
    for (const auto& [typed, next] :
         {std::pair("9999", "czk"), {"8001", "mima"}, {"wrong", "mima"}, {"Pw1", "mima"}}) {
      type(typed);
      if (typed != QString("Pw1")) press(Qt::Key_Return);
      ASSERT_EQ(focused(), next);
    }
    QGuiApplication::clipboard()->setText("before");
    for (const auto copying : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut}) {
      QTest::keySequence(dialog.focusWidget(), copying);
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
    type("Pw1");
    press(Qt::Key_Enter);
  }));
  EXPECT_EQ(screen.said(), "储值卡号错误,请重输|储值卡密码错误,请重输| 储值卡消费成功！余额：0 ");
  EXPECT_EQ(fieldText("mima"), "");
  EXPECT_EQ(stored("card as v from member"), "0");
}
