#include "checkout/frmUnSell.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

#include "Hands.h"
#include "ReturnsFixture.h"

namespace {

using testing::ElementsAre;

class frmUnSellTest : public ReturnsFixture {
 protected:
  static constexpr const char* kWindow = "frmUnSell";

  std::string text(const char* name) {
    return dialog.findChild<QLineEdit*>(name)->text().toStdString();
  }
  void set(const char* name, const char* value) {
    dialog.findChild<QLineEdit*>(name)->setText(value);
  }
  std::string focusName() { return dialog.focusWidget()->objectName().toStdString(); }
  bool canReturn() { return dialog.findChild<QPushButton*>("cmdUnSell")->isEnabled(); }
  std::string cell(int row, int column) {
    return dialog.findChild<QTableView*>("lvlistSp")
        ->model()
        ->index(row, column)
        .data()
        .toString()
        .toStdString();
  }
  /// The message window in front is read and closed.
  void readMessage() {
    hands.at("frmMsg", [this](QWidget& shown) {
      messages.push_back(shown.findChild<QLabel*>("Label1")->text().toStdString());
      Hands::pressNow(Qt::Key_Space);
    });
  }
  void answer(Qt::Key key) {
    hands.at("messageBox", [this, key](QWidget& shown) {
      messages.push_back(static_cast<QMessageBox&>(shown).text().toStdString());
      Hands::pressNow(key);
    });
  }
  void enter(const char* typed) {
    if (*typed != '\0') hands.type(kWindow, typed);
    hands.press(kWindow, {Qt::Key_Return});
  }

  frmUnSell dialog{pos};
  Hands hands;
  std::vector<std::string> messages;
};

TEST_F(frmUnSellTest, BillLineQuantityAndRefundByKeyboardAlone) {
  enter("1");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_EQ(focusName(), "txttm");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblStatus")->text().toStdString(),
              "流水号：1 商品数量：4 金额：32.00\r\n 销售时间：2026-11-22 09:05:03 收银员：张三"
              "会员卡号：8001 会员姓名：王芳");
    EXPECT_EQ(cell(0, 0) + cell(0, 1) + cell(0, 2) + cell(0, 3) + cell(0, 4) + cell(0, 5),
              "6901水10.0030.927.00");
    EXPECT_FALSE(canReturn());
  });
  enter("6901");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_EQ(text("Text1") + " " + text("Text2") + " " + text("txtAmount"), "10.00 3 3");
    EXPECT_EQ(text("txtmoney"), "27");
    EXPECT_EQ(focusName(), "txtAmount");
  });
  enter("5");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_EQ(text("txtAmount") + " " + text("txtmoney"), "3 27");
    EXPECT_EQ(focusName(), "txtmoney");
    // Back to the quantity; left by Tab, the refund follows it all the same.
    dialog.findChild<QLineEdit*>("txtAmount")->setFocus();
  });
  hands.type(kWindow, "1").press(kWindow, {Qt::Key_Tab});
  hands.at(kWindow, [&](QWidget&) { EXPECT_EQ(text("txtmoney"), "9"); });
  enter("8.5");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_EQ(books(), "95 / 2x18,1x5 / 3 23 23 32 / 1x8.5 / 23.5 6");
    EXPECT_EQ(text("Text2") + cell(0, 3) + focusName(), "22txttm");
    Hands::pressNow(Qt::Key_Escape);
  });
  dialog.exec();
  EXPECT_TRUE(hands.idle());
}

TEST_F(frmUnSellTest, ARefundAboveTheLineIsAskedForOnceAndNoIsPreselected) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y}) {
    hands.at(kWindow, [&](QWidget&) {
      set("txtNo", "1");
      set("txttm", "A7");
      dialog.findChild<QLineEdit*>("txttm")->setFocus();
    });
    hands.press(kWindow, {Qt::Key_Return, Qt::Key_Return});
    enter("5.01");
    answer(key);
    if (key != Qt::Key_Y) {
      hands.at(kWindow, [&](QWidget&) {
        EXPECT_EQ(books(), "93 / 3x27,1x5 / 4 32 32 32 / - / 32 6");
        EXPECT_EQ(focusName(), "txtmoney");
      });
    }
  }
  hands.press(kWindow, {Qt::Key_Escape});
  dialog.exec();
  EXPECT_EQ(messages, std::vector<std::string>(
                          3, "实退金额 5.01 元超过了该商品的剩余金额 5.00 元，确定要退吗？"));
  EXPECT_EQ(books(), "94 / 3x27,0x0 / 3 27 27 32 / 1x5.01 / 26.99 6");
}

TEST_F(frmUnSellTest, WhatIsMissingOrUnknownIsSaidAndReturnsNothing) {
  hands.press(kWindow, {Qt::Key_Tab});
  enter("6901");
  readMessage();
  hands.at(kWindow, [&](QWidget&) { EXPECT_EQ(focusName(), "txtNo"); });
  enter("1'");
  readMessage();
  enter("98");
  readMessage();
  enter("1");
  enter("' or ''='");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_EQ(text("Text1") + text("txtAmount") + text("txtmoney"), "");
    EXPECT_FALSE(canReturn());
    // Down to the second line of the list and Enter chooses it.
    dialog.findChild<QTableView*>("lvlistSp")->setFocus();
    Hands::pressNow(Qt::Key_Down);
    Hands::pressNow(Qt::Key_Down);
    Hands::pressNow(Qt::Key_Return);
    EXPECT_EQ(text("txttm") + focusName(), "A7txtAmount");
  });
  enter("0");
  hands.at(kWindow, [&](QWidget&) {
    EXPECT_FALSE(canReturn());
    set("txtAmount", "-2'");
    set("txtmoney", "5'");
    EXPECT_EQ(text("txtmoney"), "5'") << "a text that is no number is left as typed";
    dialog.findChild<QPushButton*>("cmdUnSell")->setEnabled(true);
    dialog.findChild<QPushButton*>("cmdUnSell")->click();
  });
  readMessage();
  hands.press(kWindow, {Qt::Key_Escape});
  dialog.exec();
  EXPECT_THAT(messages, ElementsAre("请输入要退货的单据流水号！", "无效的流水号！",
                                    "没有找到“98”单据！", "请输入正确的实退金额！"));
  EXPECT_EQ(books(), "93 / 3x27,1x5 / 4 32 32 32 / - / 32 6");
}

TEST_F(frmUnSellTest, ARefundIsRewrittenAsAPlainNumberWithoutEatingTheDecimalPoint) {
  enter("1");
  enter("A7");
  enter("");
  const struct {
    const char *typed, *shown;
  } cases[] = {{"12.05", "12.05"}, {"007", "7"}, {"12.", "12."}, {"3.50", "3.50"}, {"-x", "-x"}};
  for (const auto& c : cases) {
    hands.at(kWindow, [this](QWidget&) { dialog.findChild<QLineEdit*>("txtmoney")->selectAll(); });
    hands.type(kWindow, c.typed);
    hands.at(kWindow, [this, c](QWidget&) { EXPECT_EQ(text("txtmoney"), c.shown); });
  }
  hands.at(kWindow, [this](QWidget&) { dialog.findChild<QLineEdit*>("txtmoney")->selectAll(); });
  hands.type(kWindow, "2.50").press(kWindow, {Qt::Key_Tab});
  hands.at(kWindow, [this](QWidget&) { EXPECT_EQ(text("txtmoney"), "2.5"); });
  hands.press(kWindow, {Qt::Key_Escape});
  dialog.exec();
}

TEST_F(frmUnSellTest, TheWindowMayGoWhileAFieldIsBeingTypedIn) {
  frmUnSell other(pos);
  other.show();
  auto* quantity = other.findChild<QLineEdit*>("txtAmount");
  quantity->setFocus();
  QTest::keyClicks(quantity, "2");
}

}  // namespace
