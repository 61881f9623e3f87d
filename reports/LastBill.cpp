#include "reports/LastBill.h"

#include "saleslib/ClsDayStat.h"
#include "store/Connection.h"

// A bill's lines bear the times at which they were rung, which may be on two days.
std::optional<LastBill> lastBill(Connection& connection) {
  const std::shared_ptr<ClsSell> bill = ClsDayStat().LastSell(connection);
  if (!bill) return std::nullopt;
  Rows lines = connection.query(
      "select min(insert_Date) as first_time, max(insert_Date) as last_time from sellProducts"
      " where sellId = ?",
      bill->BillNo());
  if (!lines.next()) return std::nullopt;
  const auto first = lines.dateTime("first_time"), last = lines.dateTime("last_time");
  if (!first || !last) return std::nullopt;
  return LastBill{bill->BillNo(), first->date, last->date};
}
