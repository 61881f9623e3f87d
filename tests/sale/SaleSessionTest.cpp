#include "TillFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

class SaleSessionTest : public TillFixture {
 protected:
  bool leaves() {
    press(27);
    return session.left();
  }
};

TEST_F(SaleSessionTest, openingVoidsWhatAnEarlierRunLeftBehind) {
  ClsSell left;
  ASSERT_TRUE(left.Open(*pos.gConn, 0, 1, pos.clock));
  ClsSell others;
  ASSERT_TRUE(others.Open(*pos.gConn, 0, 2, pos.clock));
  pos.gConn->runScript(
      "insert into sellProducts (sellId, insert_Date, bm, amount, price, discount, money, ratio)"
      " values (1, '2026-11-21 20:00:00', '1001', 2, 1, 1, 2, 12)");
  open();
  EXPECT_EQ(stock("1001"), "124");
  EXPECT_EQ(lines(), "0");
  EXPECT_EQ(stored("group_concat(id) as v from sell"), "2,3");
  EXPECT_EQ(till.title1, "流水号：3   收银员：张三");
}

TEST_F(SaleSessionTest, aClockBehindTheLastBillEndsTheProgram) {
  open();
  enter(kWater);
  enter("");
  now = {{2026, 11, 21}, 23, 59, 59};
  SaleSession tomorrow(pos, till, {});
  till.session = &tomorrow;
  EXPECT_FALSE(tomorrow.open());
  EXPECT_TRUE(till.ended);
  EXPECT_EQ(onlyMessage(), "电脑系统时间错误！");
}

TEST_F(SaleSessionTest, leavesOnlyWithNothingPending) {
  open();
  enter(kWater);
  EXPECT_FALSE(leaves());
  EXPECT_EQ(onlyMessage(), "还没结束销售或还有挂起单子，不能退出。");
  enter(kCrate);
  press(115);
  EXPECT_FALSE(leaves()) << "a committed line";
  press(123);
  EXPECT_TRUE(leaves());
  EXPECT_EQ(stored("count(*) as v from sell"), "0") << "the empty bill goes too";
}

TEST_F(SaleSessionTest, enterIsTheMappedKeyAndTiesGoToTheEarlierCommand) {
  pos.gKeyBoard.mEnter = 107;
  pos.gKeyBoard.mF8 = pos.gKeyBoard.mF12 = 65;
  pos.gKeyBoard.mF4 = 0;
  open();
  enter(kWater);
  session.textComing();
  till.text = kWater;
  press(107);
  EXPECT_EQ(lines(), "2");
  press(65);
  EXPECT_EQ(searches, 1);
  EXPECT_EQ(lines(), "2");
  press(122);
  EXPECT_EQ(searches, 2);
  for (const int unused : {0, 115, 118}) EXPECT_FALSE(session.key(unused)) << unused;
  EXPECT_EQ(lines(), "2");
}

TEST_F(SaleSessionTest, leftAndRightStopAtTheEnds) {
  open();
  enter(kWater);
  press(38);
  const int left = 37, right = 39;
  const std::vector<std::pair<int, int>> steps = {
      {left, 1}, {left, 1}, {right, 2}, {right, 3}, {right, 3}};
  for (const auto& [code, column] : steps) {
    press(code);
    EXPECT_EQ(session.state.editCol, column);
  }
}

TEST_F(SaleSessionTest, theFirstKeyReplacesAShownValue) {
  open();
  enter(kWater);
  press(38);
  EXPECT_EQ(till.text, "1");
  EXPECT_FALSE(session.key(16));
  EXPECT_EQ(till.text, "1") << "Shift alone types nothing";
  type("12");
  EXPECT_EQ(till.text, "12");
}

TEST_F(SaleSessionTest, quickKeysWorkOnAnEmptyLineOnly) {
  pos.gKeyBoard.QK = {{81, ""}, {81, kWater}, {81, kCrate}, {13, kCrate}};
  open();
  EXPECT_TRUE(session.key(81));
  EXPECT_EQ(cell(0, BillRow::kName), "矿泉水");
  EXPECT_TRUE(session.state.clearOnKey);
  EXPECT_FALSE(session.mayRepeat(81));
  type("5");
  EXPECT_TRUE(session.mayRepeat(81));
  EXPECT_FALSE(session.key(81));
  EXPECT_EQ(lines(), "1");
}

TEST_F(SaleSessionTest, heldKeysRepeatOnlyTypingAndArrows) {
  open();
  for (const int code : {13, 112, 123, 27, 115}) EXPECT_FALSE(session.mayRepeat(code)) << code;
  for (const int code : {37, 38, 39, 40, 65, 8}) EXPECT_TRUE(session.mayRepeat(code)) << code;
}

TEST_F(SaleSessionTest, functionMenuListsWhatHasAnAction) {
  std::vector<std::string> keys;
  for (const auto& [key, caption] : session.menuEntries()) keys.push_back(key.toStdString());
  EXPECT_THAT(keys, ElementsAre("sell", "wait", "load", "isprint", "delsell", "exit"));
  open();
  session.menu("search");
  session.menu("unsell");
  EXPECT_EQ(searches, 1);
  session.menu("sell");
  EXPECT_EQ(onlyMessage(), "没有商品，无需结账！");
  session.menu("exit");
  EXPECT_TRUE(session.left());
}

TEST_F(SaleSessionTest, linePrintingFollowsThePrinterPort) {
  struct Case {
    const char* port;
    int model;
    bool atOpening, toggled;
    int width;
  };
  for (const Case& each : {Case{"", 1, false, true, 32}, Case{"LPT1", 1, true, false, 40},
                           Case{"LPT1", 2, true, false, 32}, Case{"USB", 1, false, false, 40}}) {
    SCOPED_TRACE(each.port);
    pos.gPosSet.PPort = each.port;
    pos.gPosSet.PModel = each.model;
    SaleSession other(pos, till, {});
    till.session = &other;
    ASSERT_TRUE(other.open());
    EXPECT_EQ(other.state.linePrint, each.atOpening);
    EXPECT_EQ(other.state.receiptCols.line, each.width);
    other.menu("isprint");
    EXPECT_EQ(other.state.linePrint, each.toggled);
  }
}
