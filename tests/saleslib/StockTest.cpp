#include <cmath>

#include "Shop.h"
#include "saleslib/ClsStock.h"

class StockTest : public Shop {
 protected:
  StockTest() { stock.Init(connection, "1001"); }
  ClsStock stock;
};

TEST_F(StockTest, WhatIsTakenAndPutBackLeavesExactlyWhatWasThere) {
  for (const double start : {0.0, 3.7, 1234567.123456}) {
    ASSERT_TRUE(stock.PutBack(start - stock.StockQty()));
    for (const double quantity : {0.1, 1.0 / 3, 12.0, 0.000001}) {
      for (int i = 0; i < 10; ++i) ASSERT_TRUE(stock.TakeOut(quantity, 0, 0));
      EXPECT_NE(stock.StockQty(), start);
      for (int i = 0; i < 10; ++i) ASSERT_TRUE(stock.PutBack(quantity));
      EXPECT_EQ(stock.StockQty(), start) << quantity;
    }
  }
}

TEST_F(StockTest, TheRuleDecidesWhetherStockMayGoNegativeAndARefusalNamesTheGoods) {
  ASSERT_TRUE(stock.PutBack(0.3));
  EXPECT_FALSE(stock.TakeOut(4, 0, 1));
  EXPECT_EQ(stock.ErrText(), "库存不足：1001（1001）现有库存 0.3");
  EXPECT_TRUE(stock.TakeOut(0.1 * 3, 0, 1)) << "down to nothing, though 0.1 * 3 is more than 0.3";
  EXPECT_EQ(stock.StockQty(), 0);
  EXPECT_TRUE(stock.TakeOut(5, 0, 0));
  EXPECT_TRUE(stock.TakeOut(-2, 0, 1)) << "a negative take fills the stock";
  connection.run("insert into spda (f_spbm, f_spmc) values ('1001', '矿泉水')");
  for (const double absurd : {std::nan(""), HUGE_VAL, 1e13}) {
    EXPECT_FALSE(stock.PutBack(absurd) || stock.TakeOut(absurd, 0, 0));
    EXPECT_EQ(stock.ErrText(), "数量超出范围：矿泉水（1001）");
  }
  EXPECT_EQ(stock.StockQty(), -3);
}
