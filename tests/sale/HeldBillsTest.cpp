#include "WatchedTill.h"

using HeldBillsTest = WatchedTill;

TEST_F(HeldBillsTest, ARecalledBillHasItsRowsItsMemberAndItsCustomersPricesAndGoesOn) {
  expect(R"(
  F5 → 没有商品，无需结账！
  F2:8001 → 会员：王芳，办卡日期：2026-01-02，累计消费：0.00 | 卡号？
  water crate → 1 矿泉水 2.20 1 1 2.20 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | 2件/30/30.20元 | 1001:87
    | 1:1001x1=2.2 | 1:1001x1=28 | ^价2.20 ^价28.00
  menu-wait → -行1 | 流水号：2… | -状态 | -会员 | 单1:00 30.2 收0 0 0 0 惠0 员1 | 单2:空 | -行2
  Esc → 还没结束销售或还有挂起单子，不能退出。
  F6 →
  F2:8001 menu-load@0 → 1 矿泉水 2.20 1 1 2.20 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | 流水号：1…
    | 2件商品，合计30.2元 | 会员：王芳，办卡日期：2026-01-02，累计消费：0.00 | -单2 | 卡号？ | ^价2.20 ^价28.00
  Up →
  80g → 3 红茶 13.50 1 1 13.50 0 | 3件/44/43.70元 | 1003:-1 | 1:1003x1=13.5 | ^价13.50
  F6 → 请先结束或挂起本次销售，再执行调用功能。
  F5 water F5 F6@0 F12 → -行1 | 流水号：5… | -状态 | -会员 | 1001:99 | 1003:0 | 单3:00 2.5 收0 0 0 0 惠0 员0
    | 单5:空 | 3:1001x1=2.5 | -单1 | -目1 | -目2 | -目3 | -行2 | -行3 | ^价2.50 ^价2.20 ^价28.00 ^价13.50
  F6@0 F12 Esc → 流水号：6… | 离开 | 1001:100 | -单3 | -单5 | -目4 | ^价2.50
  )");
}

// Stock rule 1, with the stock written down while the bill was held: the bill's own goods go back
// first, and what is there then is taken in the order of the lines.
TEST_F(HeldBillsTest, ALineRefusedAtRecallLeavesTheBillAndIsNamed) {
  setParameter("StockRule", "1");
  after("water crate water F5");
  pos.gConn->runScript("update stock set quantity = quantity - 90 where spbm = '1001'");
  expect(R"(
  F6@0 → 1 矿泉水 2.50 1 1 2.50 10 | 2 矿泉水 2.50 1 1 2.50 9 | 流水号：1… | 2件商品，合计5元 | 1001:8
    | 单1:00 5 收0 0 0 0 惠0 员0 | -单2 | -目2 | 库存不足：矿泉水（1001）现有库存 9，已从本单中去掉。 | ^价2.50 ^价2.50
  )");
}

TEST_F(HeldBillsTest, WhenTheStoreFailsTheBillStaysWhereItWas) {
  after("water");
  breakStore("update on sell");
  expect("F5 → 数据与已有的记录冲突：disk");
  mendStore();
  after("F5");
  breakStore("delete on sellProducts");
  setParameter("StockRule", "1");
  pos.gConn->runScript("update stock set quantity = -5 where spbm = '1001'");
  expect("F6@0 → 数据与已有的记录冲突：disk");
  ASSERT_EQ(session.sale().held().size(), 1U);
  EXPECT_EQ(session.sale().held().front()->Items().size(), 1U);
}

TEST_F(HeldBillsTest, PaperFeedsAtSuspensionAndRepeatsTheBillAtRecall) {
  pos.gPosSet.PPort = "LPT1";
  pos.gPosSet.PModel = 2;
  reopen();
  expect(R"(
  water → 1 矿泉水 2.50 1 1 2.50 100 | 1件/2/2.50元 | 1001:99 | 2:1001x1=2.5 | ^价2.50
  crate → 2 矿泉水整箱 28.00 1 1 28.00 88 | 2件/30/30.50元 | 1001:87 | 2:1001x1=28 | ^价28.00
    | 印：矿泉水 2.50 1 2.50 /
  F5 → -行1 | 流水号：3… | -状态 | 单2:00 30.5 收0 0 0 0 惠0 员0 | 单3:空 | -行2 | 印： / /
  F6@0 → 1 矿泉水 2.50 1 1 2.50 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | 流水号：2… | 2件商品，合计30.5元 | -单3
    | ^价2.50 ^价28.00 | 印： / 好邻居便利店 / 商品名称 单价 数量 金额 / 矿泉水 2.50 1 2.50 / 矿泉水整箱 28.00 1 28.00 /
  F12 → -行1 | 流水号：4… | -状态 | 1001:100 | 单4:空 | -单2 | -目1 | -目2 | -行2 | 印： / /
  )");
}
