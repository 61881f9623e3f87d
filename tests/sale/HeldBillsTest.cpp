#include "TillFixture.h"
#include "base/Gbk.h"
#include "base/NumberText.h"
#include "base/Text.h"

class HeldBillsTest : public TillFixture {
 protected:
  static constexpr int kEnd = 27, kUp = 38, kF4 = 115, kF5 = 116, kF6 = 117, kF12 = 123;

  HeldBillsTest() { open(); }

  void recall(int position) {
    till.choice = position;
    press(kF6);
    till.choice = -1;
  }
  std::string openBills() {
    return stored("coalesce(group_concat(id), '-') as v from sell where state = 0");
  }
  std::string storedLines() {
    return stored(
        "coalesce(group_concat(sellId || ':' || bm || 'x' || amount), '-') as v"
        " from (select * from sellProducts order by id)");
  }
  void breakStore(const char* event) {
    pos.gConn->run((std::string("create temp trigger broken before ") + event +
                    " begin select raise(abort, 'broken'); end")
                       .c_str());
  }
};

TEST_F(HeldBillsTest, aBillPutAsideKeepsItsStockAndItsRowsUntilItIsSettled) {
  enter(kWater);
  enter(kCrate);
  press(kUp);
  press(kF5);
  EXPECT_EQ(till.title1, "流水号：2   收银员：张三");
  EXPECT_EQ(till.status + openBills() + " " + storedLines(), "1,2 1:1001x1,1:1001x1");
  EXPECT_EQ(session.state.rows.size(), 1U);
  enter(kApples);
  session.menu("wait");
  EXPECT_EQ(stock("1001") + " " + stock("1005"), "87 -1");

  till.choice = 0;
  session.menu("load");
  EXPECT_EQ(stock("1001") + " " + stock("1005"), "87 -1");
  EXPECT_EQ(till.title1, "流水号：1   收银员：张三");
  EXPECT_EQ(till.status, "2件商品，合计30.5元");
  EXPECT_EQ(openBills(), "1,2") << "the empty bill on the screen is dropped";
  EXPECT_EQ(cell(0, BillRow::kStock) + cell(1, BillRow::kStock), "10088");
  EXPECT_EQ(cell(1, BillRow::kNumber) + cell(1, BillRow::kName) + cell(2, BillRow::kName),
            "2矿泉水整箱");
  press(kUp);
  EXPECT_EQ(session.state.selected, 2) << "recalled lines are committed";

  enter("80g");
  EXPECT_EQ(till.status, "3件商品，原价合计44   合计44.00元");
  enter("");
  EXPECT_EQ(openBills(), "2,4");
  EXPECT_EQ(stored("state || ' ' || quantity || ' ' || amount as v from sell where id = 1"),
            "1 3 44");
  EXPECT_EQ(session.state.heldBills.size(), 1U);
  press(kEnd);
  EXPECT_EQ(onlyMessage(), "还没结束销售或还有挂起单子，不能退出。");
  recall(0);
  press(kF12);
  EXPECT_EQ(stock("1005"), "0");
  press(kEnd);
  EXPECT_TRUE(session.left());
}

TEST_F(HeldBillsTest, whatCannotBeDoneIsSaidAndChangesNothing) {
  struct Case {
    const char* rung;
    int key;
    const char* message;
  };
  for (const Case& each : {Case{"", kF5, "没有商品，无需结账！"}, Case{"", kF6, ""},
                           Case{kWater, kF6, "请先结束或挂起本次销售，再执行调用功能。"}}) {
    SCOPED_TRACE(each.key);
    if (*each.rung) enter(each.rung);
    press(each.key);
    EXPECT_EQ(till.messages.empty() ? "" : onlyMessage(), each.message);
    EXPECT_EQ(openBills(), "1");
    EXPECT_TRUE(session.state.heldBills.empty());
  }
  EXPECT_EQ(storedLines(), "1:1001x1");
}

TEST_F(HeldBillsTest, theNextStartVoidsWhatWasHeldAtAPowerCut) {
  for (const char* code : {kWater, kCrate}) {
    enter(code);
    press(kF5);
  }
  enter(kWater);
  SaleSession next(pos, till, {});
  till.session = &next;
  ASSERT_TRUE(next.open());
  EXPECT_EQ(stock("1001") + " " + openBills() + " " + storedLines(), "100 4 -");
}

// Stock rule 1, with the stock written down while the bill was held: the bill's own goods go back
// first, and what is there then is taken in the order of the lines.
TEST_F(HeldBillsTest, aLineRefusedAtRecallLeavesTheBill) {
  struct Case {
    int writtenOff;
    const char *lines, *stock, *status;
    std::vector<std::string> messages;
  };
  const std::string refused = "库存不足：矿泉水（1001）现有库存 ";
  const std::string gone = "，已从本单中去掉。";
  const Case cases[] = {
      {0, "1001x1,1001x1,1001x2", "85", "4件商品，合计35.5元", {}},
      {86, "1001x1,1001x1", "1", "2件商品，合计30.5元", {refused + "1" + gone}},
      {90, "1001x1,1001x2", "7", "3件商品，合计7.5元", {refused + "9" + gone}},
      {101,
       "-",
       "-1",
       "0件商品，合计0元",
       {refused + "-1" + gone, refused + "-1" + gone, refused + "-1" + gone}},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.writtenOff);
    setParameter("StockRule", "1");
    pos.gConn->runScript("update stock set quantity = 100 where spbm = '1001'");
    till.messages.clear();
    for (const char* code : {kWater, kCrate, kWater}) enter(code);
    press(kUp);
    enter("2");
    press(kF5);
    const std::string bill = std::to_string(session.state.heldBills.front()->BillNo());
    pos.gConn->runScript("update stock set quantity = quantity - " +
                         std::to_string(each.writtenOff) + " where spbm = '1001'");
    recall(0);
    EXPECT_EQ(till.messages, each.messages);
    EXPECT_EQ(replaced(storedLines(), bill + ":", ""), each.lines);
    EXPECT_EQ(stock("1001") + " " + till.status, std::string(each.stock) + " " + each.status);
    EXPECT_EQ(session.state.rows.size(), session.state.curBill->Items().size() + 1);
    EXPECT_EQ(stored("quantity || ' ' || goods_amount as v from sell where id = " + bill),
              generalNumber(session.state.curBill->Quantity()) + " " +
                  generalNumber(session.state.curBill->GoodsAmount()));
    if (!session.state.curBill->Items().empty()) press(kF12);
  }
}

TEST_F(HeldBillsTest, whenTheStoreFailsTheBillStaysWhereItWas) {
  enter(kWater);
  breakStore("update on sell");
  press(kF5);
  EXPECT_NE(onlyMessage(), "");
  EXPECT_EQ(session.state.curBill->Items().size(), 1U);
  EXPECT_EQ(openBills() + " " + std::to_string(session.state.rows.size()), "1 2");
  pos.gConn->run("drop trigger broken");
  press(kF5);

  breakStore("delete on sellProducts");
  setParameter("StockRule", "1");
  pos.gConn->runScript("update stock set quantity = -5 where spbm = '1001'");
  recall(0);
  EXPECT_NE(onlyMessage(), "");
  EXPECT_EQ(stock("1001") + " " + openBills() + " " + storedLines(), "-5 1,2 1:1001x1");
  ASSERT_EQ(session.state.heldBills.size(), 1U);
  EXPECT_EQ(session.state.heldBills.front()->Items().size(), 1U);
  EXPECT_EQ(session.state.curBill->BillNo(), 2);
  pos.gConn->run("drop trigger broken");
  setParameter("StockRule", "0");
  recall(0);
  EXPECT_EQ(stock("1001") + " " + openBills() + " " + storedLines(), "-5 1 1:1001x1");
}

TEST_F(HeldBillsTest, paperFeedsAtSuspensionAndRepeatsTheBillAtRecall) {
  pos.gPosSet.PPort = "LPT1";
  session.state.linePrint = true;
  std::ofstream(folder.file("lpt1"));
  enter(kWater);
  press(kF5);
  EXPECT_EQ(fileBytes(folder.file("lpt1")), "\r\n\r\n") << "the current line joins unprinted";
  recall(0);
  const std::string paper = gbk::decode(fileBytes(folder.file("lpt1")));
  EXPECT_LT(paper.find("好邻居便利店"), paper.find("矿泉水"));
  EXPECT_NE(paper.find("2.50"), std::string::npos);
}
