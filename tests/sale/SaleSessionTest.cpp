#include "WatchedTill.h"

using SaleSessionTest = WatchedTill;

TEST_F(SaleSessionTest, OpeningVoidsWhatThisOperatorLeftAndNamesAnIncompleteTopUpOnce) {
  after("water");
  ClsSell left;
  ASSERT_TRUE(left.Open(*pos.gConn, 0, 2, pos.clock));
  pos.gConn->runScript(
      "insert into cardStored (cardbh, inMoney, addmoney, commerce, bz, complete) values"
      " ('8001', 90, 100, 150, '', 0), ('8002', 1, 1, 1, '', 1)");
  for (const char* changes :
       {"-行1 | 流水号：3… | -状态 | 1001:100 | 单2:空 | 单3:空 | -单1 | -目1 | "
        "以下充值没有记入卡内，请核对后重新充值：/卡号 8001，付款 90.00，充值 100.00",
        "流水号：4… | 单4:空 | -单3"}) {
    SaleSession again(pos, till, {});
    EXPECT_TRUE(again.open());
    EXPECT_EQ(after(""), changes);
  }
}

TEST_F(SaleSessionTest, AClockBehindTheLastBillEndsTheProgram) {
  after("water F1 crate");
  now = {{2026, 11, 21}, 23, 59, 59};
  expect(R"(
  F1 → -行1 | 流水号：3… | 上一单：金额 28.0实收现金28.0银行卡0.0储值卡0.0找零0.0 优惠0 | 应收28 现金28银行卡0储值卡0优惠0找零0元 | 结束
    | 单2:10 28 收28 0 0 0 惠0 员0 | 单3:空 | 日期或时间错误！将退出销售，请与管理员联系 | ^计28.00 ^收28.00 ^找0.00
  )");
  till.ended = false;
  SaleSession tomorrow(pos, till, {});
  EXPECT_FALSE(tomorrow.open());
  EXPECT_EQ(after(""),
            "-单3 | 电脑系统时间错误！/单据 2 的时间是 2026-11-22 09:05:03，今天却是 "
            "2026-11-21。/请先看电脑的日期对不对；电脑对了，就请店主改正这张单据：/tilladmin bill "
            "redate ~/data/shop.db 2");
}

TEST_F(SaleSessionTest, LeavesOnlyWithNothingPending) {
  after("water");
  expect(R"(
  Esc → 还没结束销售或还有挂起单子，不能退出。
  crate F4 Esc → 1件商品，原价总计2合计2.5元 | 还没结束销售或还有挂起单子，不能退出。 | ^价28.00
  F12 menu-exit → -行1 | 流水号：2… | -状态 | 离开 | 1001:100 | -单1 | -目1
  )");
}

TEST_F(SaleSessionTest, EnterIsTheMappedKeyAndTiesGoToTheEarlierCommand) {
  pos.gKeyBoard.mEnter = 107;
  pos.gKeyBoard.mF8 = pos.gKeyBoard.mF12 = 65;
  pos.gKeyBoard.mF4 = 0;
  EXPECT_EQ(after("water"),
            "1 矿泉水 2.50 1 1 2.50 100 | 1件/2/2.50元 | 1001:99 | 1:1001x1=2.5 | ^价2.50")
      << "by the Enter key itself";
  session.textComing(till.text);
  till.text = kWater;
  press(107);
  for (const int search : {65, 122}) press(search);
  EXPECT_EQ(searches, 2);
  for (const int unused : {0, 16, 115, 118}) EXPECT_FALSE(key(unused)) << unused;
  EXPECT_EQ(after(""),
            "2 矿泉水 2.50 1 1 2.50 99 | 2件/4/5.00元 | 1001:98 | 1:1001x1=2.5 | ^价2.50");
}

TEST_F(SaleSessionTest, QuickKeysWorkOnAnEmptyLineOnlyAndCommandsDoNotRepeat) {
  pos.gKeyBoard.QK = {{81, ""}, {81, kWater}, {81, kCrate}, {13, kCrate}, {82, "80"}, {83, "x"}};
  expect("Q… → 1 矿泉水 2.50 1 1 2.50 100 | 1件/2/2.50元 | 1001:99 | 1:1001x1=2.5 | ^价2.50");
  EXPECT_FALSE(session.mayRepeat(81, till.text));
  expect("5… → [5]");
  EXPECT_TRUE(session.mayRepeat(81, till.text));
  expect(R"(
  Q… → [5Q]
  Up R… → 2 | [2] | 正在修改商品行，“80”没有录入。请重新录入。 | ^价2.50
  S… → [] | 没有找到：x的商品
  )");
  for (const int code : {kEnter, kF1, kF12, kEsc, kF4})
    EXPECT_FALSE(session.mayRepeat(code, till.text)) << code;
  for (const int code : {kLeft, kDown, 65, 8})
    EXPECT_TRUE(session.mayRepeat(code, till.text)) << code;
}

TEST_F(SaleSessionTest, LinePrintingFollowsThePrinterPort) {
  const char* const cases[][3] = {{"", "没有设置打印机，打印机开关保持关闭。", ""},
                                  {"LPT1", "打印机已关闭。", " | 印： / /"},
                                  {"USB", "USB 打印机不逐行打印，打印机开关保持关闭。", ""}};
  const std::string empty = "没有商品，无需删除！";
  for (const auto& [port, toggled, fed] : cases) {
    pos.gPosSet.PPort = port;
    reopen();
    EXPECT_EQ(after("F12"), empty + fed) << port;
    EXPECT_EQ(after("menu-isprint"), toggled) << port;
    EXPECT_EQ(after("F12"), empty) << port;
  }
}
