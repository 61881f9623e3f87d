#pragma once

#include "CheckoutFixture.h"
#include "checkout/Returns.h"

/// The till with a settled bill: 3 x 10 at 0.9 sold under the code 6901 (two stock units each) and
/// 1 x 5 under A7, to the member of the fixture, paid with 32.
class ReturnsFixture : public CheckoutFixture {
 protected:
  ReturnsFixture() {
    attachMember();
    enter("水", "10", 3);
    describe("6901", 0.9, 2);
    enter("茶", "5");
    describe("A7", 1, 1);
    payCash("32");
    billNo = state.lastBill->BillNo();
  }

  /// The books that a return touches: stock, the bill's lines, the bill, returns, member.
  std::string books() {
    std::string all;
    for (const char* query : {"quantity as v from stock where spbm = '1001'",
                              "group_concat(amount || 'x' || money) as v from sellProducts"
                              " where sellId = 1",
                              "quantity || ' ' || goods_amount || ' ' || amount || ' ' || cash as v"
                              " from sell where id = 1",
                              "coalesce(group_concat(quantity || 'x' || money), '-') as v"
                              " from un_sell",
                              "total_spent || ' ' || points as v from member"}) {
      all += (all.empty() ? "" : " / ") + stored(query);
    }
    return all;
  }

  std::int32_t billNo = 0;

 private:
  /// The current line, taken out of stock with the ratio 1, as it is meant to be.
  void describe(const char* code, double discount, std::int16_t ratio) {
    ClsSellItem& line = *state.curLine;
    const double taken = line.StockQuantity();
    line.setEntryCode(code);
    line.setDiscount(Discount(discount));
    line.setRatio(ratio);
    line.Save();
    EXPECT_TRUE(TakeStock(pos, screen, line.SpCode(), line.StockQuantity() - taken, [] {}));
  }
};
