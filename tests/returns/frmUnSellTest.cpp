#include "returns/frmUnSell.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "Hands.h"
#include "ReturnsFixture.h"

/// The window for returns, driven by real key events.
class frmUnSellTest : public ReturnsFixture {
 protected:
  static constexpr const char* kWindow = "frmUnSell";

  QLineEdit* field(const char* name) { return dialog.findChild<QLineEdit*>(name); }
  std::string text(const char* name) { return field(name)->text().toStdString(); }
  std::string focusName() { return dialog.focusWidget()->objectName().toStdString(); }
  bool canReturn() { return dialog.findChild<QPushButton*>("cmdUnSell")->isEnabled(); }
  std::string firstRow() {
    const QAbstractItemModel* model = dialog.findChild<QTableView*>("lvlistSp")->model();
    std::string cells;
    for (int i = 0; i < 6; ++i) cells += model->index(0, i).data().toString().toStdString() + " ";
    return cells;
  }

  void enter(const char* typed) { hands.type(kWindow, typed).press(kWindow, {Qt::Key_Return}); }
  void look(const std::function<void()>& look) {
    hands.at(kWindow, [look](QWidget&) { look(); });
  }
  void readMessage() {
    hands.at("frmMsg", [this](QWidget& shown) {
      messages.push_back(shown.findChild<QLabel*>("Label1")->text().toStdString());
      Hands::pressNow(Qt::Key_Space);
    });
  }
  void work() {
    dialog.exec();
    EXPECT_TRUE(hands.idle());
  }

  frmUnSell dialog{pos.gKeyBoard, pos.returnBooks()};
  Hands hands;
  std::vector<std::string> messages;
};

TEST_F(frmUnSellTest, BillLineQuantityAndRefundByKeyboardAlone) {
  enter("1");
  look([this] {
    EXPECT_EQ(dialog.findChild<QLabel*>("lblStatus")->text().toStdString(),
              "流水号：1 商品数量：4 金额：32.00\r\n 销售时间：2026-11-22 09:05:03 收银员：张三"
              "会员卡号：8001 会员姓名：王芳");
    EXPECT_EQ(firstRow(), "6901 水 10.00 3 0.9 27.00 ");
    EXPECT_FALSE(canReturn());
  });
  enter("6901");
  look([this] {
    EXPECT_EQ(text("Text1") + " " + text("Text2"), "10.00 3");
    EXPECT_EQ(text("txtAmount") + " " + text("txtmoney"), "3 27");
  });
  enter("5");
  look([this] {
    EXPECT_EQ(text("txtAmount") + " " + text("txtmoney"), "3 27") << "no more than was sold";
    // Back to the quantity; left by Tab, the refund follows it all the same.
    field("txtAmount")->setFocus(Qt::BacktabFocusReason);
  });
  hands.type(kWindow, "1").press(kWindow, {Qt::Key_Tab});
  look([this] { EXPECT_EQ(text("txtmoney"), "9"); });
  enter("8.5");
  look([this] {
    EXPECT_EQ(books(), "95 / 2x18,1x5 / 3 23 23 32 / 1x8.5 / 23.5 6");
    EXPECT_EQ(firstRow() + focusName(), "6901 水 10.00 2 0.9 18.00 txttm");
    EXPECT_EQ(field("txttm")->selectedText(), "6901") << "the next code replaces it";
    EXPECT_FALSE(canReturn()) << "a second press would store it again";
    Hands::pressNow(Qt::Key_Escape);
  });
  work();
}

TEST_F(frmUnSellTest, ARefundAboveTheLineIsAskedForOnceAndNoIsPreselected) {
  enter("1");
  enter("A7");
  hands.press(kWindow, {Qt::Key_Return});
  for (const Qt::Key answer : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y}) {
    look([this] {
      EXPECT_EQ(books(), kSoldBooks);
      EXPECT_EQ(focusName(), "txtmoney");
    });
    enter("5.01");
    hands.press("messageBox", {answer});
  }
  hands.press(kWindow, {Qt::Key_Escape});
  work();
  EXPECT_EQ(books(), "94 / 3x27,0x0 / 3 27 27 32 / 1x5.01 / 26.99 6");
}

TEST_F(frmUnSellTest, WhatIsMissingOrUnknownIsSaidAndReturnsNothing) {
  hands.press(kWindow, {Qt::Key_Tab});
  enter("6901");
  readMessage();
  look([this] { EXPECT_EQ(focusName(), "txtNo"); });
  enter("98");
  readMessage();
  enter("1");
  enter("xx");
  look([this] {
    EXPECT_EQ(text("Text1") + text("txtAmount") + text("txtmoney"), "");
    EXPECT_FALSE(canReturn());
    // Down to the second line of the list and Enter chooses it.
    dialog.findChild<QTableView*>("lvlistSp")->setFocus();
  });
  hands.press(kWindow, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  look([this] { EXPECT_EQ(text("txttm") + focusName(), "A7txtAmount"); });
  enter("0");
  look([this] { EXPECT_FALSE(canReturn()); });
  hands.press(kWindow, {Qt::Key_Backtab});
  enter("1");
  enter("5'");
  readMessage();
  hands.press(kWindow, {Qt::Key_Escape});
  work();
  EXPECT_THAT(messages, testing::ElementsAre("请输入要退货的单据流水号！", "没有找到“98”单据！",
                                             "请输入正确的实退金额！"));
  EXPECT_EQ(books(), kSoldBooks);
}

TEST_F(frmUnSellTest, TheWindowMayGoWhileAFieldIsBeingTypedIn) {
  frmUnSell other(pos.gKeyBoard, pos.returnBooks());
  other.show();
  auto* quantity = other.findChild<QLineEdit*>("txtAmount");
  quantity->setFocus();
  QTest::keyClicks(quantity, "2");
}
