#pragma once

#include <map>
#include <stdexcept>
#include <string>

#include "BookFaults.h"
#include "base/NumberText.h"
#include "store/Connection.h"

/// What a shop began with, as it follows from its books at any later time, whoever wrote them and
/// however: the stock and what the lines of all bills took from it; the money on a card and what
/// bills took from it (as long as it was not topped up, where the cashier has the last word); a
/// member's purchases less those of the bills, and what was paid back.
class Figures {
 public:
  explicit Figures(Connection& connection)
      : stock_(stockAtFirst(connection)), accounts_(accountsAtFirst(connection)) {}

  /// Holds the books against the beginning; goods that are new began with no stock, members that
  /// are new begin here. Throws std::runtime_error naming what is wrong.
  void check(Connection& connection) {
    if (const std::string faults = bookFaults(connection); !faults.empty())
      throw std::runtime_error("the books do not balance: " + faults);
    const std::map<std::string, double> stock = stockAtFirst(connection);
    for (const auto& [item, quantity] : stock)
      require("stock of " + item, generalNumber(stock_[item]), generalNumber(quantity));
    require("the list of goods", std::to_string(stock_.size()), std::to_string(stock.size()));
    for (const auto& [name, amount] : accountsAtFirst(connection))
      require(name, generalNumber(accounts_.try_emplace(name, amount).first->second),
              generalNumber(amount));
  }

 private:
  static void require(const std::string& what, const std::string& began, const std::string& now) {
    if (began == now) return;
    throw std::runtime_error("the books do not balance: " + what + " began with " + began +
                             ", by the lines with " + now);
  }

  // A line takes its goods when it is rung, whether its bill is settled or not.
  static std::map<std::string, double> stockAtFirst(Connection& connection) {
    std::map<std::string, double> stock;
    Rows rows = connection.query(
        "select spbm, quantity, 1 as ratio from stock "
        "union all select bm, amount, ratio from sellProducts");
    while (rows.next()) {
      double& left = stock[rows.text("spbm")];
      left = roundedQuantity(left + roundedQuantity(rows.number("quantity").value_or(0) *
                                                    rows.number("ratio").value_or(1)));
    }
    return stock;
  }

  static std::map<std::string, Currency> accountsAtFirst(Connection& connection) {
    std::map<std::string, Currency> accounts;
    Rows rows = connection.query(
        "select 'card ' || bh as name, card as money from member "
        "where bh not in (select cardbh from cardStored) "
        "union all select 'card ' || bh, card_pay from sell join member on bh = card_no "
        "where card_no not in (select cardbh from cardStored) "
        "union all select 'purchases of ' || bh, total_spent from member "
        "union all select 'purchases of ' || m.bh, u.money from un_sell u "
        "join sell s on s.id = u.sell_id join member m on m.id = s.member_id");
    while (rows.next()) accounts[rows.text("name")] += rows.currency("money").value_or(Currency());
    // What the settled bills came to when they were settled, before any return.
    Rows lines = connection.query(
        "select m.bh, l.price, l.discount, l.amount + "
        "(select coalesce(sum(quantity), 0) from un_sell where item_id = l.id) as sold "
        "from sellProducts l join sell s on s.id = l.sellId join member m on m.id = s.member_id "
        "where s.state = 1");
    while (lines.next())
      accounts["purchases of " + lines.text("bh")] -=
          lineAmount(lines.currency("price").value_or(Currency()),
                     roundedQuantity(lines.number("sold").value_or(0)),
                     Discount(lines.number("discount").value_or(1)));
    return accounts;
  }

  std::map<std::string, double> stock_;
  std::map<std::string, Currency> accounts_;
};
