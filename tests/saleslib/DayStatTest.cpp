#include "Shop.h"
#include "base/NumberText.h"
#include "saleslib/ClsDayStat.h"

using DayStatTest = Shop;

TEST_F(DayStatTest, ADayHoldsTheOperatorsSettledBillsOfThatDate) {
  const std::tuple<DateTime, int, bool> bills[] = {
      {{{2026, 11, 21}, 23, 59, 59}, 1, true},  // 1: the day before
      {{{2026, 11, 22}, 0, 0, 0}, 1, true},     // 2
      {{{2026, 11, 22}, 12, 0, 0}, 2, true},    // 3: another operator
      {{{2026, 11, 22}, 12, 0, 0}, 1, false},   // 4: still open
      {{{2026, 11, 22}, 23, 59, 59}, 1, true},  // 5
      {{{2026, 11, 23}, 0, 0, 0}, 1, true},     // 6: the day after
      {{{2026, 1, 1}, 0, 0, 0}, 1, true}};      // 7: the clock was set back
  ClsDayStat day;
  EXPECT_EQ(day.LastSell(connection), nullptr);
  for (const auto& [time, operatorId, settled] : bills) {
    now = time;
    ClsSell bill = openBill(operatorId);
    ring(bill, "1.1", 1.25);
    if (settled) settle(bill);
  }
  const auto found = [&day] {
    std::string numbers;
    for (const auto& bill : day.Sells()) numbers += std::to_string(bill->BillNo()) + " ";
    return numbers + generalNumber(day.SumQuantity()) + " " + sumText(day.SumMoney());
  };
  day.DayQuery(connection, {2026, 11, 22}, 0, 1);
  EXPECT_EQ(found(), "2 5 2.5 2.76");
  for (const auto& bill : day.Sells()) bill->setAmount(yuan("900000000000000"));
  EXPECT_EQ(found(), "2 5 2.5 超出范围");
  day.OpenQuery(connection, 1);
  EXPECT_EQ(found(), "4 1.25 1.38") << "from the lines: its row was never stored";
  EXPECT_EQ(day.LastSell(connection)->BillNo(), 6) << "the latest by time";
}
