#include "Shop.h"
#include "saleslib/ClsUnSell.h"

using ReturnTest = Shop;

TEST_F(ReturnTest, AReturnIsLimitedToWhatTheLineStillHolds) {
  ClsSell bill = openBill();
  const auto line = ring(bill, "10", 3);
  settle(bill);
  const struct {
    double asked, given;
    const char* money;
  } returns[] = {{1, 1, "9"}, {5, 2, "9"}, {1, 0, "0"}, {-1, 0, "0"}};
  for (const auto& [asked, given, money] : returns) {
    ClsUnSell back;
    back.Init(connection, bill.BillNo(), 0, clock);
    back.setItemId(line->Id());
    back.setUnQty(asked);
    back.setUnMoney(yuan("9"));
    back.Save();
    EXPECT_EQ(back.UnQty(), given);
    EXPECT_EQ(back.UnMoney(), yuan(money));
    line->setQuantity(line->Quantity() - back.UnQty());
    bill.Recalculate();
    ASSERT_TRUE(bill.Save());
  }
  EXPECT_EQ(stored("select group_concat(quantity || 'x' || money) from un_sell"), "1x9,2x9");
  EXPECT_EQ(loaded(bill.BillNo()).Amount(), Currency());

  ClsUnSell foreign;
  foreign.Init(connection, openBill().BillNo());
  foreign.setItemId(line->Id());
  foreign.setUnQty(1);
  EXPECT_DEATH(foreign.Save(), "one of its bill");
}
