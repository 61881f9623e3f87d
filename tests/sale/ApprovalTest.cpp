#include <QLineEdit>
#include <QTableView>

#include "Approvals.h"
#include "TillFixture.h"
#include "sale/frmSell.h"

using enum Qt::Key;

/// What needs a right on the sale screen, by real key events in its windows.
class ApprovalTest : public TillFixture {
 protected:
  struct Case {
    const char* enough;  ///< a right that just allows it
    const char* tooLittle;
    const char* typed;       ///< on the sale screen, before
    Qt::Key deed;            ///< this key is pressed
    const char* price = "";  ///< what is answered when the deed asks for one
  };

  ApprovalTest() {
    pos.gPosSet.MBPort = "LPT1";
    setParameter("Journal", "1");
    askForApprovals(pos, {},
                    {"discount", "price", "negative", "delete", "drawer", "topup", "members"});
  }

  /// The cashier has that right and does what the case says; the answer is given to the question
  /// for an approval, where there is one. Gives whether anything has changed.
  bool does(const Case& each, const char* right, const char* answer) {
    bool changed = false;
    hands.at("frmSell", [&](QWidget&) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
      pos.gOperator->setRights(ClsRights({right}));
      Hands::typeNow(each.typed);
      const std::string before = state();
      if (*answer != 0) hands.type("dlgApproval", answer);
      if (*each.price != 0 && answer != kGivesUp) hands.type("frmInput", each.price);
      Hands::pressNow(each.deed);
      EXPECT_TRUE(hands.idle());
      changed = state() != before;
      leave();
    });
    window.openModal();
    return changed;
  }
  void leave() {
    pos.gOperator->setRights(ClsRights({"delete"}));
    if (rows().rowCount() > 1) Hands::pressNow(Key_F12);
    Hands::pressNow(Key_Escape);
  }
  const QAbstractItemModel& rows() { return *window.findChild<QTableView*>("lv")->model(); }
  /// The kinds of entries that name the approver, but for the approvals themselves.
  std::string approvedEntries() {
    return stored(
        "group_concat(kind, ' ') as v from (select distinct kind from fact where approver = 2 and"
        " kind <> 'approval_given' order by kind)");
  }
  /// All that a deed could change.
  std::string state() {
    QString all = "[" + window.findChild<QLineEdit*>("t")->text() + "]";
    for (int row = 0; row < rows().rowCount(); ++row) {
      for (int column = 0; column <= BillRow::kMoney; ++column)
        all += rows().index(row, column).data().toString() + " ";
    }
    return all.toStdString() + lines() + stock() + fileBytes(folder.file("lpt1")) + opened;
  }
  SaleSession::Opener opener(Right right) {
    return {[this] {
              const auto approver = pos.permission.approver();
              opened += approver ? approver->Name() : "-";
            },
            right};
  }

  std::string opened;  ///< for each window that was opened, who approved it
  Hands hands;
  frmSell window{
      pos, {{"addmen", opener(Right::kMembers)}, {"topup", opener(Right::kTopUp)}}, [] {}};
};

TEST_F(ApprovalTest, ADeedAsksUnlessTheRightIsThereAndGivingUpChangesNothing) {
  const Case cases[] = {
      {"discount:15", "discount:14.9", "6901234567892\n↑→0.85", Key_Return},
      {"negative", "delete", "6901234567892\n↑-1", Key_Return},
      {"delete", "negative", "6901234567892\n↑0", Key_Return},
      {"delete", "price", "6901234567892\n6901", Key_F4},
      {"delete", "price", "6901234567892\n6901234567885\n69", Key_F12},
      {"price", "discount", kNoPrice, Key_Return, "3\n"},
      {"drawer", "sell", "690", Key_F10},
      {"members", "topup", "690", Key_F3},
      {"topup", "members", "690", Key_F9},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(std::string(each.enough) + " " + each.typed);
    EXPECT_TRUE(does(each, each.enough, ""));
    EXPECT_TRUE(does(each, each.tooLittle, kApproves));
    EXPECT_TRUE(does(each, "sell", kSwipes));
    EXPECT_FALSE(does(each, each.tooLittle, kGivesUp));
  }
  EXPECT_EQ(opened, "-李四李四-李四李四");
  EXPECT_EQ(approvedEntries(),
            "bill_cancelled discount_changed drawer_opened line_deleted price_typed "
            "quantity_lowered");
}

TEST_F(ApprovalTest, WhatCostsTheShopNothingAsksNobody) {
  EXPECT_TRUE(does({"", "", "6901234567892\n↑2", Key_Return}, "sell", ""));
  EXPECT_TRUE(does({"", "", "6901234567892\n↑→1.5", Key_Return}, "sell", ""));
  EXPECT_TRUE(does({"", "", "6901234567892\n↑→0.5\n↑→0.9", Key_Return}, "discount:50", ""));
  setParameter("Approval", "0");
  EXPECT_TRUE(does({"", "", "6901234567892\n↑→0.5", Key_Return}, "sell", ""));
}

TEST_F(ApprovalTest, WhatIsGivenUpAtTheSettlementIsADiscountAndItsFieldsStay) {
  hands.at("frmSell", [&](QWidget&) {
    pos.gOperator->setRights(ClsRights({"discount:10"}));
    for (const char* favour : {"0.26", "0.25"}) {  // of 2.50
      Hands::typeNow("6901234567892\n");
      hands.type("frmEndSell", QString("\t") + favour + "\n5\n");
      if (favour == std::string("0.26")) {
        hands.see("dlgApproval", "Label1 lblSaid",
                  "打折和优惠 10.4%|张三最多只能到 10%。请有权限的人授权，Esc 放弃。@txtNumber");
        hands.type("dlgApproval", "⎋")
            .see("frmEndSell", "txtInMoney favorable", "5|0.26@txtInMoney");
        hands.type("frmEndSell", "\n").type("dlgApproval", kApproves);
      }
      Hands::pressNow(Key_Return);
      EXPECT_TRUE(hands.idle());
    }
    Hands::pressNow(Key_Escape);
  });
  window.openModal();
  EXPECT_EQ(stored("group_concat(state || ':' || favorable) as v from sell"), "1:0.26,1:0.25");
  EXPECT_EQ(approvedEntries(), "bill_settled");
}
