#include "TillFixture.h"
#include "base/Gbk.h"

class HeldBillsTest : public TillFixture {
 protected:
  HeldBillsTest() { open(); }

  void recall(int position) {
    till.choice = position;
    press(kF6);
    till.choice = -1;
  }
  /// Stock of 1001, open bills, and all lines stored.
  std::string books() {
    return stock() + " / " +
           stored("coalesce(group_concat(id), '-') as v from sell where state = 0") + " / " +
           stored(
               "coalesce(group_concat(sellId || ':' || bm || 'x' || amount), '-') as v"
               " from (select * from sellProducts order by id)");
  }
};

TEST_F(HeldBillsTest, aRecalledBillHasItsRowsAndGoesOn) {
  enter(kWater);
  enter(kCrate);
  session.menu("wait");
  EXPECT_EQ(till.title1 + till.status, "流水号：2   收银员：张三");
  press(kEsc);
  EXPECT_EQ(till.said(), "还没结束销售或还有挂起单子，不能退出。");
  till.choice = 0;
  session.menu("load");
  EXPECT_EQ(till.title1 + till.status, "流水号：1   收银员：张三2件商品，合计30.5元");
  EXPECT_EQ(cell(1, BillRow::kNumber) + cell(1, BillRow::kName) + cell(1, BillRow::kStock),
            "2矿泉水整箱88");
  press(kUp);
  EXPECT_EQ(till.framed.first, 2) << "recalled lines are committed";
  enter("80g");
  EXPECT_EQ(till.status, "3件商品，原价合计44   合计44.00元");
  press(kF6);
  EXPECT_EQ(till.said(), "请先结束或挂起本次销售，再执行调用功能。");
}

// Stock rule 1, with the stock written down while the bill was held: the bill's own goods go back
// first, and what is there then is taken in the order of the lines.
TEST_F(HeldBillsTest, aLineRefusedAtRecallLeavesTheBillAndIsNamed) {
  setParameter("StockRule", "1");
  for (const char* code : {kWater, kCrate, kWater}) enter(code);
  press(kF5);
  pos.gConn->runScript("update stock set quantity = quantity - 90 where spbm = '1001'");
  recall(0);
  EXPECT_EQ(till.said(), "库存不足：矿泉水（1001）现有库存 9，已从本单中去掉。");
  EXPECT_EQ(stock() + " " + till.status, "8 2件商品，合计5元");
}

TEST_F(HeldBillsTest, whenTheStoreFailsTheBillStaysWhereItWas) {
  enter(kWater);
  breakStore("update on sell");
  press(kF5);
  EXPECT_NE(till.said(), "");
  EXPECT_EQ(bill().Items().size(), 1U);
  EXPECT_EQ(books(), "99 / 1 / 1:1001x1");
  mendStore();
  press(kF5);

  breakStore("delete on sellProducts");
  setParameter("StockRule", "1");
  pos.gConn->runScript("update stock set quantity = -5 where spbm = '1001'");
  recall(0);
  EXPECT_NE(till.said(), "");
  EXPECT_EQ(books(), "-5 / 1,2 / 1:1001x1");
  ASSERT_EQ(session.sale().held().size(), 1U);
  EXPECT_EQ(session.sale().held().front()->Items().size(), 1U);
  EXPECT_EQ(bill().BillNo(), 2);
}

TEST_F(HeldBillsTest, theCustomerSeesEachPriceAgain) {
  press(kEsc);
  pos.gPosSet.CVProt = "COM1";
  open();
  for (const char* code : {kWater, kCrate}) enter(code);
  press(kF5);
  ports.shown.clear();
  recall(0);
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA2.50\r\x1Bs1\x1BQA28.00\r");
}

TEST_F(HeldBillsTest, paperFeedsAtSuspensionAndRepeatsTheBillAtRecall) {
  press(kEsc);
  pos.gPosSet.PPort = "LPT1";
  open();
  enter(kWater);
  press(kF5);
  EXPECT_EQ(fileBytes(folder.file("lpt1")), "\r\n\r\n") << "the current line joins unprinted";
  recall(0);
  const std::string paper = gbk::decode(fileBytes(folder.file("lpt1")));
  EXPECT_LT(paper.find("好邻居便利店"), paper.find("矿泉水"));
  EXPECT_NE(paper.find("2.50"), std::string::npos);
}
