#include "saleslib/ShiftTakings.h"

#include <string_view>

#include "saleslib/Fields.h"
#include "store/Connection.h"

namespace {

constexpr const char* kKeptCash = "cash_kept";

// A bill that is paid for is the drawer's, though it may not be stored as settled yet.
void addBills(Connection& connection, std::int64_t shift, ShiftTakings& takings) {
  Rows rows = connection.query(
      "select * from sell where shift = ? and (state = 1 or paid = 1) order by id", shift);
  while (rows.next()) {
    Currency due;
    for (const TenderKind& kind : tenderKinds()) {
      const Currency figure = money(rows, kind.tender == Tender::kCash ? kKeptCash : kind.column);
      if (figure.isZero()) continue;
      takings.tendered[static_cast<std::size_t>(kind.tender)].add(figure);
      due += figure;
    }
    takings.bills.add(due);
  }
}

void addSums(Connection& connection, const char* query, std::int64_t shift, ShiftSum& sum) {
  Rows rows = connection.query(query, shift);
  while (rows.next()) sum.add(money(rows, "money"));
}

}  // namespace

Currency ShiftTakings::cash() const {
  return of(Tender::kCash).amount + topUps.amount + cashIn.amount - refunds.amount - cashOut.amount;
}

ShiftTakings takingsOfShift(Connection& connection, std::int64_t shift) {
  ShiftTakings takings;
  addBills(connection, shift, takings);
  addSums(connection, "select inMoney as money from cardStored where shift = ? and complete = 1",
          shift, takings.topUps);
  addSums(connection, "select money from un_sell where shift = ?", shift, takings.refunds);
  Rows moves = connection.query("select amount from shift_cash where shift = ?", shift);
  while (moves.next()) {
    const Currency amount = money(moves, "amount");
    amount < Currency() ? takings.cashOut.add(-amount) : takings.cashIn.add(amount);
  }
  return takings;
}

ShiftTakings closedTakings(Connection& connection, std::int64_t shift) {
  ShiftTakings takings;
  Rows rows =
      connection.query("select kind, count, amount from shift_figure where shift = ?", shift);
  while (rows.next()) {
    const std::string name = rows.text("kind");
    ShiftTakings::each(takings, [&](std::string_view each, ShiftSum& sum) {
      if (each == name) sum = {rows.whole("count").value_or(0), money(rows, "amount")};
    });
  }
  return takings;
}
