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
  limitTo(heldByLine());
  if (!(quantity_ > 0)) return;
  const std::optional<std::int64_t> key = connection_->insert(
      "insert into un_sell (un_time, sell_id, item_id, quantity, money, cost, ratio, discount,"
      " operator_id, shift) values (?, ?, ?, ?, ?, ?, ?, ?, ?,"
      " (select id from shift where closed is null))",
      clock_(), billNo_, itemId_, quantity_, money_, cost_, ratio_, discount_, operatorId_);
  transaction.commit();
  id_ = key32(key.value());
}

void ClsUnSell::limitTo(double held) {
  const double wanted = quantity_;
  quantity_ = roundedQuantity(std::min(wanted, held));
  if (!(quantity_ > 0)) {
    quantity_ = 0;
    money_ = Currency();
  } else if (held < wanted) {
    money_ = lineAmount(money_, quantity_ / wanted, Discount());
  }
}

std::vector<ClsUnSell::Earlier> ClsUnSell::OfLine(Connection& connection, std::int32_t billNo,
                                                  std::int32_t itemId) {
  std::vector<Earlier> returns;
  Rows rows = connection.query(
      "select quantity, money from un_sell where item_id = ?1 and sell_id = ?2"
      " union all select quantity, money from return_elsewhere join un_sell on id = un_sell"
      " where sell_id = ?2 and line = ?1",
      itemId, billNo);
  while (rows.next()) {
    returns.push_back({rows.number("quantity").value_or(0), ::money(rows, "money")});
  }
  return returns;
}

double ClsUnSell::heldByLine() const {
  if (itemId_ == 0) return quantity_;
  Rows rows = connection_->query("select sellId, amount from sellProducts where id = ?", itemId_);
  ensure(rows.next() && whole32(rows, "sellId") == billNo_, "a returned line is one of its bill");
  return rows.number("amount").value_or(0);
}
