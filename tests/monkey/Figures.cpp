#include "monkey/Figures.h"

#include <stdexcept>

#include "BookFaults.h"
#include "base/NumberText.h"
#include "store/Connection.h"

namespace {

using Amounts = std::map<std::string, Currency>;

// A line takes its goods when it is rung, whether its bill is settled or not.
std::map<std::string, double> stockAtFirst(Connection& connection) {
  std::map<std::string, double> stock;
  Rows rows = connection.query("select spbm, quantity from stock");
  while (rows.next()) stock[rows.text("spbm")] = rows.number("quantity").value_or(0);
  Rows lines = connection.query("select bm, amount, ratio from sellProducts");
  while (lines.next()) {
    const double taken = lines.number("amount").value_or(0) * lines.number("ratio").value_or(1);
    double& left = stock[lines.text("bm")];
    left = roundedQuantity(left + roundedQuantity(taken));
  }
  return stock;
}

void add(Amounts& amounts, const char* what, Rows rows) {
  while (rows.next()) {
    amounts[what + rows.text("bh")] += rows.currency("money").value_or(Currency());
  }
}

/// Takes off what the settled bills of each member came to when they were settled, before any
/// return.
void takeOffBought(Amounts& amounts, Rows lines) {
  while (lines.next()) {
    const double sold =
        roundedQuantity(lines.number("amount").value_or(0) + lines.number("returned").value_or(0));
    amounts["purchases of " + lines.text("bh")] -=
        lineAmount(lines.currency("price").value_or(Currency()), sold,
                   Discount(lines.number("discount").value_or(1)));
  }
}

Amounts accountsAtFirst(Connection& connection) {
  Amounts accounts;
  add(accounts, "card ",
      connection.query("select bh, card as money from member "
                       "where bh not in (select cardbh from cardStored) "
                       "union all select bh, card_pay from sell join member on bh = card_no "
                       "where card_no not in (select cardbh from cardStored)"));
  add(accounts, "purchases of ",
      connection.query("select bh, total_spent as money from member "
                       "union all select m.bh, u.money from un_sell u "
                       "join sell s on s.id = u.sell_id join member m on m.id = s.member_id"));
  takeOffBought(
      accounts,
      connection.query(
          "select m.bh, l.price, l.discount, l.amount, "
          "(select coalesce(sum(quantity), 0) from un_sell where item_id = l.id) as returned "
          "from sellProducts l join sell s on s.id = l.sellId join member m on m.id = s.member_id "
          "where s.state = 1"));
  return accounts;
}

void require(bool right, const std::string& what) {
  if (!right) throw std::runtime_error("the books do not balance: " + what);
}

}  // namespace

Figures::Figures(Connection& connection)
    : stock_(stockAtFirst(connection)), accounts_(accountsAtFirst(connection)) {}

void Figures::check(Connection& connection) {
  const std::string faults = bookFaults(connection);
  require(faults.empty(), faults);
  const std::map<std::string, double> stock = stockAtFirst(connection);
  for (const auto& [item, quantity] : stock) {
    require(quantity == stock_[item], "stock of " + item + " began with " +
                                          generalNumber(stock_[item]) + ", by the lines with " +
                                          generalNumber(quantity));
  }
  require(stock.size() == stock_.size(), "stock of some goods is gone");
  for (const auto& [name, amount] : accountsAtFirst(connection)) {
    const Currency began = accounts_.try_emplace(name, amount).first->second;
    require(amount == began, name + " began with " + twoDecimals(began) + ", by the bills with " +
                                 twoDecimals(amount));
  }
}
