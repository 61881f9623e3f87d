#include "WatchedTill.h"

using BillLinesTest = WatchedTill;

TEST_F(BillLinesTest, TellsEachLineAndOnlyTheCurrentOneIsReachedAndRemoved) {
  expect(R"(
  water → 1 矿泉水 2.50 1 1 2.50 100 | 1件/2/2.50元 | 1001:99 | 1:1001x1=2.5 | ^价2.50
  crate → 2 矿泉水整箱 28.00 1 1 28.00 88 | 2件/30/30.50元 | 1001:87 | 1:1001x1=28 | ^价28.00
  Up → @2数量 | [1]
  3 → 2 矿泉水整箱 28.00 3 1 84.00 64 | 3 | -框 | [3] | 4件/86/86.50元 | 1001:63 | 1:1001x3=84 | ^价28.00
  Up Right 0.9 → 2 矿泉水整箱 28.00 3 0.9 75.60 64 | 4件/86/78.10元 | 1:1001x3=75.6 | ^价28.00
  Up Right Right Left Left Left → @2序号 | []
  F4 → -行2 | -框 | 1件商品，原价总计2合计2.5元 | 1001:99 | -目2 | -行3
  F4 → 没有可删除的行：已确认的商品不能单独删除，只能整单撤消。
  Up →
  apples Up 0.1 apples Up 0.2 → 2 苹果 5.98 0.1 1 0.60 0.9 | 3 苹果 5.98 0.2 1 1.20 0.7 | 4 | [4]
    | 1.3件/2/4.30元 | 1005:-0.3 | 1:1005x0.1=0.6 | 1:1005x0.2=1.2 | ^价5.98 ^价5.98 ^价5.98 ^价5.98
  Up Right click →
  F4 → -行3 | [] | 1.1件商品，原价总计2合计3.1元 | 1005:-0.1 | -目4 | -行4
  F12 → -行1 | 流水号：2… | -状态 | 1001:100 | 1005:0 | 单2:空 | -单1 | -目1 | -目3 | -行2
  F12 → 没有商品，无需删除！
  F4 → 没有商品，无需删除！
  click F1 → 没有商品，无需结账！
  )");
}

// By length of the text, selected row and edited column.
TEST_F(BillLinesTest, EnterActsByLengthRowAndColumn) {
  setParameter("CheckPayment", "1");
  expect(R"(
  x → [x]
  xx → 没有找到：xx的商品
  茶茶茶茶茶 → 没有找到：茶茶茶茶茶的商品
  xxxxxx → 没有找到条码为：xxxxxx的商品
  Up １.5 → 1 矿泉水 2.50 1.5 1 3.75 99.5 | 2 | [2] | 1.5件/4/3.75元 | 1001:98.5 | 5:1001x1.5=3.75
    | ^价2.50
  Up x → @1数量
  Up 1 → 2 | [2]
  Up 12345 → 1 矿泉水 2.50 12345 1 30862.50 -12244 | 2 | [2] | 12345件/24690/30862.50元
    | 1001:-12245 | 8:1001x12345=30862.5 | ^价2.50
  Up 123456 → 2 | [2] | 正在修改商品行，“123456”没有录入。请重新录入。 | ^价2.50
  Up Right 0.9 → 1 矿泉水 2.50 1 0.9 2.25 100 | 2 | [2] | 1件/2/2.25元 | 10:1001x1=2.25 | ^价2.50
  Up Right 0 → 1 矿泉水 2.50 1 0 0.00 100 | 2 | [2] | 1件/2/0.00元 | 11:1001x1=0 | ^价2.50
  Up Right 8 → @1折扣 | :折扣 8 大于 1，会比原价贵，确定吗？ 否
  Up Right -1 → @1折扣
  Up Right abc → @1折扣
  )",
         "water", "Down F12");
}

TEST_F(BillLinesTest, RefusesWhatIsNotInStockAndFiguresThatDoNotFit) {
  setParameter("StockRule", "1");
  pos.gConn->runScript("update stock set quantity = 13 where spbm = '1001'");
  expect(R"(
  crate Up 2 → 1 矿泉水整箱 28.00 1 1 28.00 2 | @1数量 | [1] | 1件/28/28.00元 | 1001:1 | 1:1001x1=28
    | 库存不足：矿泉水（1001）现有库存 1 | ^价28.00
  Down crate → -框 | [] | 库存不足：矿泉水（1001）现有库存 1
  water water → 2 矿泉水 2.50 1 1 2.50 1 | 2件/30/30.50元 | 1001:0 | 1:1001x1=2.5
    | 库存不足：矿泉水（1001）现有库存 0 | ^价2.50
  F12 → -行1 | 流水号：2… | -状态 | 1001:13 | 单2:空 | -单1 | -目1 | -目2 | -行2
  )");
  setParameter("StockRule", "0");
  expect(R"(
  balloon:900000000000000 → 1 气球 900000000000000.00 1 1 900000000000000.00 0
    | 1件/900000000000000/900000000000000.00元 | 1004:-1 | 2:1004x1=900000000000000
    | ^价900000000000000.00
  Up 99999 → @1数量 | [1] | 金额太大，超出了可以计算的范围。
  Down balloon:900000000000000 → -框 | [] | 金额太大，超出了可以计算的范围。
  )");
}

// Stock has moved when the row fails: both are taken back, and the till goes on.
TEST_F(BillLinesTest, KeepsTheStockOfALineThatCannotBeStoredOrDeleted) {
  breakStore("insert on sellProducts");
  expect("water → 数据与已有的记录冲突：disk");
  mendStore();
  after("water");
  breakStore("delete on sellProducts");
  expect(R"(
  F4 → 数据与已有的记录冲突：disk
  F12 → 数据与已有的记录冲突：disk
  )");
  mendStore();
  expect("F12 → -行1 | 流水号：2… | -状态 | 1001:100 | 单2:空 | -单1 | -目1");
}

TEST_F(BillLinesTest, RoundsTheOriginalPriceHalvesToEvenAndDoesNotWrap) {
  expect(R"(
  several@0 → 1 绿茶 12.50 1 0.9 11.25 50 | 1件/12/11.25元 | 1002:49 | 1:1002x1=11.25
    | 选：绿茶 杭州 库存：50、红茶 安徽 库存：0 | ^价12.50
  several@1 → 2 红茶 13.50 1 1 13.50 0 | 2件/26/24.75元 | 1003:-1 | 1:1003x1=13.5
    | 选：绿茶 杭州 库存：49、红茶 安徽 库存：0 | ^价13.50
  Up 2.5 → 2 红茶 13.50 2.5 1 33.75 -1.5 | 3 | [3] | 3.5件/40/45.00元 | 1003:-2.5
    | 1:1003x2.5=33.75 | ^价13.50
  Up 99999 → 2 红茶 13.50 99999 1 1349986.50 -99998 | 100000件/1399998/1349997.75元 | 1003:-99999
    | 1:1003x99999=1349986.5 | ^价13.50
  )");
}

TEST_F(BillLinesTest, FindsByBarcodeSpecificationAndItemNumber) {
  const std::pair<const char*, const char*> cases[] = {
      {"６９０１２３４５６７８９２", "1 6901234567892 矿泉水 2.50 1 1 2.50 100 浙江 瓶 1001 "},
      {"８０ｇ", "1 80g 红茶 13.50 1 1 13.50 0 安徽 盒 1003 "},
      {"QB-0", "1 QB-01 铅笔 1.50 1 1 1.50 0 上海 支 2001 "},
      {"50g", "1 50g 绿茶 12.50 1 0.9 11.25 50 杭州 盒 1002 "},
      {"大", "           "},
      {"6900000000999",
       "数据文件里“xsdj”的内容不是金额。|没有找到条码为：6900000000999的商品           "}};
  for (const auto& [typed, found] : cases) {
    enter(typed);
    std::string cells = till.said();
    for (const std::string& cell : till.rows.at(0)) cells += cell + " ";
    EXPECT_EQ(cells, found);
    press(kF4);
    till.said();
  }
}

TEST_F(BillLinesTest, AsksForOneOfSeveralAndForAPriceUntilItIsOne) {
  setParameter("CheckPayment", "1");
  expect(R"(
  several@1 → 1 红茶 13.50 1 1 13.50 0 | 1件/14/13.50元 | 1003:-1 | 1:1003x1=13.5
    | 选：绿茶 杭州 库存：50、红茶 安徽 库存：0 | ^价13.50
  several → 选：绿茶 杭州 库存：50、红茶 安徽 库存：-1 | 没有找到条码为：6900000000029的商品
  -0:,十元,-3,９９９９９９９９９９９９９９９９９９９,０００1234,100000,３.5@1 → 2 橡皮 1234.00 1 1 1234.00 0
    | 2件/1248/1247.50元 | 2002:-1 | 1:2002x1=1234 | 选：铅笔 货号: QB-01 库存：0、橡皮 货号: XP-02 库存：0
    | ^价1234.00
  )");
}
