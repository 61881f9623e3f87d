#include "Shop.h"
#include "saleslib/ClsDayStat.h"

using DayStatTest = Shop;

TEST_F(DayStatTest, ADayHoldsTheOperatorsSettledBillsOfThatDate) {
  const struct {
    DateTime time;
    std::int32_t operatorId;
    bool settled;
  } bills[] = {
      {{{2026, 11, 21}, 23, 59, 59}, 1, true},  // 1: the day before
      {{{2026, 11, 22}, 0, 0, 0}, 1, true},     // 2
      {{{2026, 11, 22}, 12, 0, 0}, 2, true},    // 3: another operator
      {{{2026, 11, 22}, 12, 0, 0}, 1, false},   // 4: still open
      {{{2026, 11, 22}, 23, 59, 59}, 1, true},  // 5
      {{{2026, 11, 23}, 0, 0, 0}, 1, true},     // 6: the day after
  };
  ClsDayStat day;
  EXPECT_EQ(day.LastSell(connection), nullptr);
  for (const auto& [time, operatorId, settled] : bills) {
    now = time;
    ClsSell bill = openBill(operatorId);
    ring(bill, "1.1", 1.25);
    if (settled) settle(bill);
  }
  day.DayQuery(connection, {2026, 11, 22}, 0, 1);
  ASSERT_EQ(day.Sells().size(), 2u);
  EXPECT_EQ(day.Sells()[0]->BillNo(), 2);
  EXPECT_EQ(day.Sells()[1]->BillNo(), 5);
  EXPECT_EQ(day.SumQuantity(), 2.5);
  EXPECT_EQ(day.SumMoney(), yuan("2.76"));

  day.OpenQuery(connection, 1);
  ASSERT_EQ(day.Sells().size(), 1u);
  EXPECT_EQ(day.Sells()[0]->BillNo(), 4);
  EXPECT_EQ(day.Sells()[0]->Items().size(), 1u) << "its goods go back to stock";
  EXPECT_EQ(day.SumMoney(), yuan("1.38")) << "from the lines: its row was never stored";

  EXPECT_EQ(day.LastSell(connection)->BillNo(), 6);
  now = {{2026, 1, 1}, 0, 0, 0};
  ClsSell clockSetBack = openBill();
  settle(clockSetBack);
  EXPECT_EQ(day.LastSell(connection)->BillNo(), 6) << "the latest by time";
  day.DayQuery(connection, {2026, 11, 22}, 0, 9);
  EXPECT_EQ(day.SumMoney(), Currency());
}
