#include "WatchedTill.h"

using HeldBillsTest = WatchedTill;

TEST_F(HeldBillsTest, ARecalledBillHasItsRowsItsMemberAndItsCustomersPricesAndGoesOn) {
  expect({{"F5", "没有商品，无需结账！"},
          {"F2:8001", "会员：王芳，办卡日期：2026-01-02，累计消费：0.00 | 卡号？"},
          {"water crate",
           "1 矿泉水 2.20 1 1 2.20 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | @3条码 | "
           "2件商品，原价合计30   合计30.20元 | 库存1001:87 | 目1:1 1001x1=2.2 | 目2:1 1001x1=28 | "
           "^s1^QA2.20 ^s1^QA28.00 "},
          {"menu-wait",
           "-行1 | @1条码 | 流水号：2… | -状态 | -会员 | 单1:00 30.2 收0 0 0 0 惠0 员1 | 单2:空 | "
           "-行2"},
          {"Esc", "还没结束销售或还有挂起单子，不能退出。"},
          {"F6", ""},
          {"F2:8001 menu-load@0",
           "1 矿泉水 2.20 1 1 2.20 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | @3条码 | 流水号：1… | "
           "2件商品，合计30.2元 | 会员：王芳，办卡日期：2026-01-02，累计消费：0.00 | -单2 | 卡号？ "
           "| ^s1^QA2.20 ^s1^QA28.00 "},
          {"Up", ""},
          {"80g",
           "3 红茶 13.50 1 1 13.50 0 | @4条码 | 3件商品，原价合计44   合计43.70元 | 库存1003:-1 | "
           "目3:1 1003x1=13.5 | ^s1^QA13.50 "},
          {"F6", "请先结束或挂起本次销售，再执行调用功能。"},
          {"F5 water F5 F6@0 F12",
           "-行1 | @1条码 | 流水号：5… | -状态 | -会员 | 库存1001:99 | 库存1003:0 | 单3:00 2.5 收0 "
           "0 0 0 惠0 员0 | 单5:空 | 目4:3 1001x1=2.5 | -单1 | -目1 | -目2 | -目3 | -行2 | -行3 | "
           "^s1^QA2.50 ^s1^QA2.20 ^s1^QA28.00 ^s1^QA13.50 "},
          {"F6@0 F12 Esc", "流水号：6… | 离开 | 库存1001:100 | -单3 | -单5 | -目4 | ^s1^QA2.50 "}});
}

// Stock rule 1, with the stock written down while the bill was held: the bill's own goods go back
// first, and what is there then is taken in the order of the lines.
TEST_F(HeldBillsTest, ALineRefusedAtRecallLeavesTheBillAndIsNamed) {
  setParameter("StockRule", "1");
  after("water crate water F5");
  pos.gConn->runScript("update stock set quantity = quantity - 90 where spbm = '1001'");
  expect({{"F6@0",
           "1 矿泉水 2.50 1 1 2.50 10 | 2 矿泉水 2.50 1 1 2.50 9 | @3条码 | 流水号：1… | "
           "2件商品，合计5元 | 库存1001:8 | 单1:00 5 收0 0 0 0 惠0 员0 | -单2 | -目2 | "
           "库存不足：矿泉水（1001）现有库存 9，已从本单中去掉。 | ^s1^QA2.50 ^s1^QA2.50 "}});
}

TEST_F(HeldBillsTest, WhenTheStoreFailsTheBillStaysWhereItWas) {
  after("water");
  breakStore("update on sell");
  expect({{"F5", "数据与已有的记录冲突：disk"}});
  mendStore();
  after("F5");
  breakStore("delete on sellProducts");
  setParameter("StockRule", "1");
  pos.gConn->runScript("update stock set quantity = -5 where spbm = '1001'");
  expect({{"F6@0", "库存1001:-5 | 数据与已有的记录冲突：disk"}});
  ASSERT_EQ(session.sale().held().size(), 1U);
  EXPECT_EQ(session.sale().held().front()->Items().size(), 1U);
}

TEST_F(HeldBillsTest, PaperFeedsAtSuspensionAndRepeatsTheBillAtRecall) {
  pos.gPosSet.PPort = "LPT1";
  pos.gPosSet.PModel = 2;
  reopen();
  expect({{"water",
           "1 矿泉水 2.50 1 1 2.50 100 | @2条码 | 1件商品，原价合计2   合计2.50元 | 库存1001:99 | "
           "目1:2 1001x1=2.5 | ^s1^QA2.50 "},
          {"crate",
           "2 矿泉水整箱 28.00 1 1 28.00 88 | @3条码 | 2件商品，原价合计30   合计30.50元 | "
           "库存1001:87 | 目2:2 1001x1=28 | ^s1^QA28.00  | 印：矿泉水            2.50   1  2.50/"},
          {"F5",
           "-行1 | @1条码 | 流水号：3… | -状态 | 单2:00 30.5 收0 0 0 0 惠0 员0 | 单3:空 | -行2 | "
           "印：//"},
          {"F6@0",
           "1 矿泉水 2.50 1 1 2.50 100 | 2 矿泉水整箱 28.00 1 1 28.00 88 | @3条码 | 流水号：2… | "
           "2件商品，合计30.5元 | -单3 | ^s1^QA2.50 ^s1^QA28.00  | 印：                            "
           "    /          好邻居便利店          /     商品名称     单价 数量 金额/矿泉水          "
           "  2.50   1  2.50/矿泉水整箱       28.00   1 28.00/"},
          {"F12",
           "-行1 | @1条码 | 流水号：4… | -状态 | 库存1001:100 | 单4:空 | -单2 | -目1 | -目2 | -行2 "
           "| 印：//"}});
}
