#include "TillFixture.h"

using SaleSessionTest = TillFixture;

TEST_F(SaleSessionTest, openingVoidsWhatAnEarlierRunOfThisOperatorLeftBehind) {
  for (const int operatorId : {1, 2}) {
    ClsSell left;
    ASSERT_TRUE(left.Open(*pos.gConn, 0, operatorId, pos.clock));
  }
  open();
  EXPECT_EQ(stored("group_concat(id) as v from sell"), "2,3");
}

TEST_F(SaleSessionTest, openingNamesATopUpWithoutItsBalanceOnce) {
  pos.gConn->runScript(
      "insert into cardStored (cardbh, inMoney, addmoney, commerce, bz, complete) values"
      " ('8001', 90, 100, 150, '', 0), ('8002', 1, 1, 1, '', 1)");
  open();
  EXPECT_EQ(till.said(),
            "以下充值没有记入卡内，请核对后重新充值：\n"
            "卡号 8001，付款 90.00，充值 100.00");
  press(kEsc);
  open();
  EXPECT_EQ(till.said(), "");
}

TEST_F(SaleSessionTest, aClockBehindTheLastBillEndsTheProgram) {
  open();
  enter(kWater);
  enter("");
  now = {{2026, 11, 21}, 23, 59, 59};
  SaleSession tomorrow(pos, till, {});
  EXPECT_FALSE(tomorrow.open());
  EXPECT_TRUE(till.ended);
  EXPECT_THAT(till.said(), testing::StartsWith("电脑系统时间错误！\n单据 1 的时间是 2026-11-22 "));
}

TEST_F(SaleSessionTest, leavesOnlyWithNothingPending) {
  open();
  enter(kWater);
  press(kEsc);
  enter(kCrate);
  press(kF4);
  press(kEsc);
  EXPECT_FALSE(session.left()) << "a committed line";
  press(kF12);
  session.menu("exit");
  EXPECT_TRUE(session.left());
  EXPECT_EQ(stored("count(*) as v from sell"), "0") << "the empty bill goes too";
}

TEST_F(SaleSessionTest, enterIsTheMappedKeyAndTiesGoToTheEarlierCommand) {
  pos.gKeyBoard.mEnter = 107;
  pos.gKeyBoard.mF8 = pos.gKeyBoard.mF12 = 65;
  pos.gKeyBoard.mF4 = 0;
  open();
  enter(kWater);  // by the Enter key itself
  session.textComing(till.text);
  till.text = kWater;
  press(107);
  for (const int search : {65, 122}) press(search);
  EXPECT_EQ(searches, 2);
  for (const int unused : {0, 115, 118}) EXPECT_FALSE(key(unused)) << unused;
  EXPECT_EQ(lines(), "2");
}

TEST_F(SaleSessionTest, theEditorStaysWithinItsThreeColumns) {
  open();
  enter(kWater);
  press(kUp);
  EXPECT_FALSE(key(16));
  EXPECT_EQ(till.text, "1") << "Shift alone types nothing";
  for (int i = 0; i < 3; ++i) press(kLeft);
  EXPECT_EQ(till.framed, std::pair(0, BillRow::kNumber));
  for (int i = 0; i < 3; ++i) press(kRight);
  EXPECT_EQ(till.framed, std::pair(0, BillRow::kDiscount));
}

TEST_F(SaleSessionTest, quickKeysWorkOnAnEmptyLineOnly) {
  pos.gKeyBoard.QK = {{81, ""}, {81, kWater}, {81, kCrate}, {13, kCrate}, {82, "80"}, {83, "x"}};
  open();
  EXPECT_TRUE(key(81));
  EXPECT_EQ(cell(0, BillRow::kName), "矿泉水");
  EXPECT_FALSE(session.mayRepeat(81, till.text));
  type("5");
  EXPECT_TRUE(session.mayRepeat(81, till.text));
  EXPECT_FALSE(key(81));
  EXPECT_EQ(lines(), "1");
  press(kUp);
  press(82);
  EXPECT_EQ(till.said(), "正在修改商品行，“80”没有录入。请重新录入。");
  EXPECT_EQ(cell(0, BillRow::kQuantity), "1") << "80 is no quantity";
  press(83);
  EXPECT_EQ(till.said(), "没有找到：x的商品");
  for (const int code : {kEnter, kF1, kF12, kEsc, kF4})
    EXPECT_FALSE(session.mayRepeat(code, till.text)) << code;
  for (const int code : {kLeft, kDown, 65, 8})
    EXPECT_TRUE(session.mayRepeat(code, till.text)) << code;
}

TEST_F(SaleSessionTest, linePrintingFollowsThePrinterPort) {
  const struct {
    const char *port, *toggled;
    bool printsAtOpening;
  } cases[] = {{"", "没有设置打印机，打印机开关保持关闭。", false},
               {"LPT1", "打印机已关闭。", true},
               {"USB", "USB 打印机不逐行打印，打印机开关保持关闭。", false}};
  for (const auto& [port, toggled, printsAtOpening] : cases) {
    pos.gPosSet.PPort = port;
    open();
    press(kF12);
    EXPECT_EQ(fileBytes(folder.file("lpt1")), printsAtOpening ? "\r\n\r\n" : "") << port;
    till.said();
    session.menu("isprint");
    EXPECT_EQ(till.said(), toggled);
    std::filesystem::remove(folder.file("lpt1"));
    press(kF12);
    EXPECT_EQ(fileBytes(folder.file("lpt1")), "") << port;
    press(kEsc);
  }
}
