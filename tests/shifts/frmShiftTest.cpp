#include "shifts/frmShift.h"

#include <QTableWidget>

#include "Approvals.h"
#include "base/Gbk.h"
#include "shifts/RequiredShift.h"

using testing::HasSubstr;

/// A shop that works in shifts, with the printer and the drawer at LPT1.
struct frmShiftTest : ShopFixture {
  frmShiftTest() {
    setParameter("Shifts", "1");
    setParameter("Journal", "1");
    pos.gPosSet.PPort = pos.gPosSet.MBPort = "LPT1";
  }
  std::string paper() { return gbk::decode(fileBytes(folder.file("lpt1"))); }
  std::string entries() {
    return stored(
        "group_concat(kind) as v from fact where kind not in ('journal_begun',"
        " 'books_stated')");
  }
  void work() {
    frmShift(pos).exec();
    EXPECT_TRUE(hands.idle());
  }
  Hands hands;
};

TEST_F(frmShiftTest, NothingIsSoldBeforeTheFloatIsNamed) {
  hands.type("dlgCash", "⎋");
  EXPECT_FALSE(requireShift(pos, nullptr));
  hands.type("dlgCash", "x\n").see("lblSaid txtAmount", "请输入金额，到分为止。|x@txtAmount");
  hands.type("200\n");
  EXPECT_TRUE(requireShift(pos, nullptr));
  EXPECT_TRUE(requireShift(pos, nullptr)) << "asked once";
  EXPECT_EQ(pos.shiftBooks().current()->cashFloat, Currency::fromYuan(200));
  setParameter("Shifts", "0");
  EXPECT_TRUE(requireShift(pos, nullptr));
}

TEST_F(frmShiftTest, IsCountedBlindAndACrashInTheMidstLeavesItOpenAndTheCountKept) {
  hands.type("frmShift", "\n").type("dlgCash", "100\n");
  hands.type("frmShift", "↓\n").type("dlgCash", "30\n").see("txtReason", "@txtReason");
  hands.type("\n").see("lblSaid", "请写明原因。@txtReason").type("bags\n");
  hands.type("frmShift", "↓↓↓\n");
  const char* const kSum = "lblSum pieces0";
  hands.see("dlgCashCount", kSum, "合计：0.00 元|@pieces0");
  hands.type("x").see(kSum, "合计：有不是整数的张数|x@pieces0");
  hands.type("\b\n1\n↓");
  // The program is killed between the count and the close.
  hands.type("\n\n\n\n\n\n\n");
  hands.see("dlgShiftSheet", "lblExpected lblCounted lblOver", "70.00|50.00|-20.00@cmdOk");
  hands.type("⎋").type("frmShift", "⎋");
  work();
  EXPECT_EQ(entries(), "shift_opened,cash_moved,drawer_opened,shift_counted");
  EXPECT_THAT(paper(), HasSubstr("取出现金"));
  EXPECT_THAT(paper(), Not(HasSubstr("结班表")));

  askForApprovals(pos, {"sell"}, {"shift"});
  hands.type("frmShift", "↓↓↓\n").type("dlgApproval", kApproves);
  hands.type("dlgCashCount", "\n\n3\n1\n\n\n\n\n\n");
  hands.see("dlgShiftSheet", "lblExpected lblCounted lblOver", "70.00|70.00|0.00@cmdOk");
  hands.type("\n").type("frmShift", "↑↑\n").type("dlgApproval", kApproves);
  hands.see("dlgShiftSheet", "lblCounted", "70.00@cmdOk").type("\n");
  hands.at("frmShift", [](QWidget& window) {
    auto* const list = window.findChild<QTableWidget*>("listClosed");
    EXPECT_EQ(list->item(0, 3)->text() + list->item(0, 4)->text(), "2026-11-22 09:05张三");
  });
  hands.see("lblState cmdClose", "还没有开班。|(清点和结班)@cmdOpen").type("⎋");
  work();
  EXPECT_THAT(entries(), HasSubstr("shift_counted,shift_closed"));
  EXPECT_EQ(stored("approver as v from fact where kind = 'shift_closed'"), "2");
  const std::string printed = paper();
  EXPECT_THAT(printed, HasSubstr("清点（第 2 次）"));
  EXPECT_THAT(printed, HasSubstr("（重打）"));
  EXPECT_THAT(printed, HasSubstr(stored("substr(hash, 1, 4) as v from fact where kind = "
                                        "'shift_closed'")));
}
