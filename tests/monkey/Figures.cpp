#include "monkey/Figures.h"

#include <stdexcept>

#include "base/NumberText.h"
#include "store/Connection.h"
#include "tools/Books.h"

namespace {

using Amounts = std::map<std::string, Currency>;

std::map<std::string, double> stockOf(Connection& connection) {
  std::map<std::string, double> stock;
  Rows rows = connection.query("select spbm, quantity from stock");
  while (rows.next()) stock[rows.text("spbm")] = rows.number("quantity").value_or(0);
  return stock;
}

Amounts sums(Rows rows) {
  Amounts sums;
  while (rows.next()) sums[rows.text("bh")] += rows.currency("money").value_or(Currency());
  return sums;
}

/// What the settled bills of each member came to when they were settled, before any return.
Amounts purchases(Connection& connection) {
  Rows lines = connection.query(
      "select m.bh, l.price, l.discount, l.amount, "
      "(select coalesce(sum(quantity), 0) from un_sell where item_id = l.id) as returned "
      "from sellProducts l join sell s on s.id = l.sellId join member m on m.id = s.member_id "
      "where s.state = 1");
  Amounts sums;
  while (lines.next()) {
    const double sold =
        roundedQuantity(lines.number("amount").value_or(0) + lines.number("returned").value_or(0));
    sums[lines.text("bh")] += lineAmount(lines.currency("price").value_or(Currency()), sold,
                                         Discount(lines.number("discount").value_or(1)));
  }
  return sums;
}

void require(bool right, const std::string& what) {
  if (!right) throw std::runtime_error("the books do not balance: " + what);
}

}  // namespace

Figures::Figures(Connection& connection) : stock_(stockOf(connection)) {
  checkMembers(connection);
}

void Figures::check(Connection& connection) {
  std::string faults;
  Books(connection, [&faults](const std::string& fault) { faults += fault + "\n"; }).check();
  require(faults.empty(), faults);
  checkStock(connection);
  checkMembers(connection);
}

// A line takes its goods when it is rung, whether its bill is settled or not.
void Figures::checkStock(Connection& connection) const {
  std::map<std::string, double> expected = stock_;
  Rows lines = connection.query("select bm, amount, ratio from sellProducts");
  while (lines.next()) {
    double& stock = expected[lines.text("bm")];
    stock = roundedQuantity(stock - roundedQuantity(lines.number("amount").value_or(0) *
                                                    lines.number("ratio").value_or(1)));
  }
  const std::map<std::string, double> found = stockOf(connection);
  for (const auto& [item, quantity] : expected) {
    const auto there = found.find(item);
    const double stock = there == found.end() ? 0 : there->second;
    require(stock == quantity, "stock of " + item + " is " + generalNumber(stock) + ", not " +
                                   generalNumber(quantity));
  }
}

void Figures::checkMembers(Connection& connection) {
  Amounts paid = sums(connection.query("select card_no as bh, card_pay as money from sell"));
  Amounts refunded =
      sums(connection.query("select m.bh, u.money from un_sell u join sell s on s.id = u.sell_id "
                            "join member m on m.id = s.member_id"));
  Amounts bought = purchases(connection);
  Rows members = connection.query(
      "select *, (select count(*) from cardStored where cardbh = bh) as topUps from member");
  while (members.next()) {
    const std::string number = members.text("bh");
    const Member began{
        members.currency("card").value_or(Currency()) + paid[number],
        members.currency("total_spent").value_or(Currency()) - bought[number] + refunded[number]};
    const auto [known, isNew] = members_.try_emplace(number, began);
    if (isNew) continue;
    if (members.whole("topUps").value_or(0) == 0) {
      require(began.balance == known->second.balance,
              "card " + number + " began with " + twoDecimals(known->second.balance) +
                  ", by its payments with " + twoDecimals(began.balance));
    }
    require(began.totalSpent == known->second.totalSpent,
            "purchases of member " + number + " began with " +
                twoDecimals(known->second.totalSpent) + ", by the bills with " +
                twoDecimals(began.totalSpent));
  }
}
