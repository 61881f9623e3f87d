#include "returns/frmUnSell.h"

#include <QTableView>

#include "Approvals.h"
#include "ReturnsFixture.h"

/// The window for returns, driven by real key events.
class frmUnSellTest : public ReturnsFixture {
 protected:
  static constexpr const char* kWindow = "frmUnSell";

  /// The fields and the first row of the list, and which button can be pressed.
  Hands& see(const char* picture) {
    return hands.at(kWindow, [this, picture](QWidget&) {
      std::string row;
      const QAbstractItemModel* list = dialog.findChild<QTableView*>("lvlistSp")->model();
      for (int i = 0; i < 6; ++i) row += list->index(0, i).data().toString().toStdString() + " ";
      EXPECT_EQ(
          row + Hands::textsOf(dialog, "txtNo txttm Text1 Text2 txtAmount txtmoney cmdUnSell"),
          picture);
    });
  }
  Hands& seeBooks(const char* expected) {
    return hands.at(kWindow, [this, expected](QWidget&) { EXPECT_EQ(books(), expected); });
  }
  Hands& focus(const char* name) {
    return hands.at(kWindow, [this, name](QWidget&) {
      dialog.findChild<QWidget*>(name)->setFocus(Qt::BacktabFocusReason);
    });
  }
  Hands& type(const char* keys) { return hands.type(kWindow, keys); }
  void work() {
    type("⎋");
    dialog.exec();
    EXPECT_TRUE(hands.idle());
  }

  frmUnSell dialog{pos};
  Hands hands;
};

TEST_F(frmUnSellTest, BillLineQuantityAndRefundByKeyboardAlone) {
  type("1\n").see(kWindow, "lblStatus",
                  "流水号：1 商品数量：4 金额：32.00\r\n 销售时间：2026-11-22 09:05:03 "
                  "收银员：张三会员卡号：8001 会员姓名：王芳@txttm");
  see("6901 水 10.00 3 0.9 27.00 1||||||(退货)@txttm");
  type("6901\n");
  see("6901 水 10.00 3 0.9 27.00 1|6901|10.00|3|3|27|退货@txtAmount");
  type("5\n");  // no more than was sold
  see("6901 水 10.00 3 0.9 27.00 1|6901|10.00|3|3|27|退货@txtmoney");
  focus("txtAmount");
  type("1\t");  // the refund follows it all the same
  see("6901 水 10.00 3 0.9 27.00 1|6901|10.00|3|1|9|退货@txtmoney");
  type("8.5\n");
  see("6901 水 10.00 2 0.9 18.00 1|6901|||||(退货)@txttm");
  seeBooks("95 / 2x18,1x5 / 3 23 23 32 / 1x8.5 / 23.5 6");
  type("x");  // the next code replaces the one before
  see("6901 水 10.00 2 0.9 18.00 1|x|||||(退货)@txttm");
  work();
}

TEST_F(frmUnSellTest, ARefundAboveTheLineIsAskedForOnceAndNoIsPreselected) {
  type("1\nA7\n\n");
  for (const Qt::Key answer : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y}) {
    seeBooks(kSoldBooks).see(kWindow, "txttm", "A7@txtmoney");
    type("5.01\n").press("messageBox", {answer});
  }
  seeBooks("94 / 3x27,0x0 / 3 27 27 32 / 1x5.01 / 26.99 6");
  work();
}

TEST_F(frmUnSellTest, WhatIsMissingOrUnknownIsSaidAndReturnsNothing) {
  type("\t6901\n").says("frmMsg", "请输入要退货的单据流水号！");
  type("98\n").says("frmMsg", "没有找到“98”单据！");
  type("1\nxx\n");
  see("6901 水 10.00 3 0.9 27.00 1|xx|||||(退货)@txttm");
  focus("lvlistSp");
  type("↓↓\n");  // the second line of the list
  see("6901 水 10.00 3 0.9 27.00 1|A7|5.00|1|1|5|退货@txtAmount");
  type("0\n");
  see("6901 水 10.00 3 0.9 27.00 1|A7|5.00|1|0|0|(退货)@txtmoney");
  hands.press(kWindow, {Qt::Key_Backtab});
  type("1\n5'\n").says("frmMsg", "请输入正确的实退金额！");
  seeBooks(kSoldBooks);
  work();
}

TEST_F(frmUnSellTest, ARefundAboveTheCashiersLimitNeedsAnApprovalAndGivingUpKeepsTheFields) {
  askForApprovals(pos, {"return:9"}, {"return:18"});
  type("1\n6901\n1\n\n");
  seeBooks("95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6");
  type("6901\n2\n\n");
  hands.see("dlgApproval", "Label1 lblSaid",
            "退货 18.00 元|张三最多只能到 9.00 元。请有权限的人授权，Esc 放弃。@txtNumber");
  hands.type("dlgApproval", kGivesUp);
  see("6901 水 10.00 2 0.9 18.00 1|6901|10.00|2|2|18|退货@txtmoney");
  seeBooks("95 / 2x18,1x5 / 3 23 23 32 / 1x9 / 23 6");
  type("\n");
  hands.type("dlgApproval", kApproves);
  seeBooks("99 / 0x0,1x5 / 1 5 5 32 / 1x9,2x18 / 5 6");
  work();
}

TEST_F(frmUnSellTest, TheWindowMayGoWhileAFieldIsBeingTypedIn) {
  frmUnSell other(pos);
  other.show();
  auto* quantity = other.findChild<QLineEdit*>("txtAmount");
  quantity->setFocus();
  QTest::keyClicks(quantity, "2");
}
