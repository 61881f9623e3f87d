#include "saleslib/ClsUnSell.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/Fields.h"
#include "store/Connection.h"
#include "store/Transaction.h"

void ClsUnSell::Init(Connection& connection, std::int32_t billNo, int, Clock clock) {
  *this = ClsUnSell();
  connection_ = &connection;
  clock_ = std::move(clock);
  billNo_ = billNo;
}

void ClsUnSell::Save() {
  ensure(connection_ != nullptr, "a return is bound before it is stored");
  Transaction transaction(*connection_);
  quantity_ = roundedQuantity(std::min(quantity_, heldByLine()));
  if (!(quantity_ > 0)) {
    quantity_ = 0;
    money_ = Currency();
    return;
  }
  connection_->run(
      "insert into un_sell (un_time, sell_id, item_id, quantity, money, cost, ratio, discount,"
      " operator_id) values (?, ?, ?, ?, ?, ?, ?, ?, ?)",
      clock_(), billNo_, itemId_, quantity_, money_, cost_, ratio_, discount_, operatorId_);
  transaction.commit();
}

double ClsUnSell::heldByLine() const {
  Rows rows = connection_->query("select sellId, amount from sellProducts where id = ?", itemId_);
  ensure(rows.next() && whole32(rows, "sellId") == billNo_, "a returned line is one of its bill");
  return rows.number("amount").value_or(0);
}
