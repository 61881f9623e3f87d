#include "kill/Ledger.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "BookFaults.h"
#include "base/NumberText.h"
#include "store/Connection.h"

namespace {

Currency money(const Rows& row, const char* column) {
  return row.currency(column).value_or(Currency());
}

int whole(const Rows& row, const char* column) {
  return static_cast<int>(row.whole(column).value_or(0));
}

void requireRightBooks(Connection& connection) {
  std::string faults = bookFaults(connection);
  Rows open = connection.query(
      "select id, quantity, (select count(*) from sellProducts where sellId = sell.id) as lines "
      "from sell where state = 0");
  for (int bills = 0; open.next();) {
    if (++bills > 1 || whole(open, "lines") != 0) {
      faults += "open bill " + open.text("id") + " with " + open.text("lines") + " lines\n";
    }
  }
  if (!faults.empty()) throw std::runtime_error(faults);
}

void readBills(Connection& connection, Ledger& ledger) {
  Rows rows = connection.query(
      "select s.*, m.bh as member from sell s left join member m on m.id = s.member_id "
      "where state = 1");
  while (rows.next()) {
    ledger.bills[whole(rows, "id")] = {.member = rows.text("member"),
                                       .card = rows.text("card_no"),
                                       .amount = money(rows, "amount"),
                                       .cash = money(rows, "cash"),
                                       .favorable = money(rows, "favorable"),
                                       .bankCard = money(rows, "bank_card"),
                                       .cardPay = money(rows, "card_pay"),
                                       .salesman = whole(rows, "salesman"),
                                       .lines = {}};
  }
  Rows lines = connection.query("select * from sellProducts order by id");
  while (lines.next()) {
    const auto bill = ledger.bills.find(whole(lines, "sellId"));
    if (bill == ledger.bills.end()) {
      throw std::runtime_error("line " + lines.text("id") + " is on no settled bill");
    }
    bill->second.lines.push_back({.item = lines.text("bm"),
                                  .code = lines.text("entry_code"),
                                  .price = money(lines, "price"),
                                  .discount = Discount(lines.number("discount").value_or(1)),
                                  .quantity = lines.number("amount").value_or(0),
                                  .ratio = whole(lines, "ratio")});
  }
}

void readRecords(Connection& connection, Ledger& ledger) {
  Rows stock = connection.query("select spbm, quantity from stock");
  while (stock.next()) ledger.stock[stock.text("spbm")] = stock.number("quantity").value_or(0);
  Rows members = connection.query("select * from member");
  while (members.next()) {
    ledger.members[members.text("bh")] = {money(members, "card"), money(members, "total_spent"),
                                          whole(members, "points")};
  }
  Rows returns = connection.query(
      "select u.*, l.bm as item from un_sell u join sellProducts l on l.id = u.item_id "
      "order by u.id");
  while (returns.next()) {
    ledger.returns.push_back({whole(returns, "sell_id"), returns.text("item"),
                              returns.number("quantity").value_or(0), money(returns, "money")});
  }
  Rows topUps = connection.query("select * from cardStored order by id");
  while (topUps.next()) {
    ledger.topUps.push_back({topUps.text("cardbh"), money(topUps, "inMoney"),
                             money(topUps, "addmoney"), money(topUps, "commerce"),
                             whole(topUps, "complete") != 0});
  }
}

std::string billText(const Ledger::Bill& bill) {
  return generalNumber(bill.quantity()) + " goods, amount " + twoDecimals(bill.amount) + ", cash " +
         twoDecimals(bill.cash) + ", given " + twoDecimals(bill.favorable) + ", bank card " +
         twoDecimals(bill.bankCard) + ", stored value " + twoDecimals(bill.cardPay) +
         " of card \"" + bill.card + "\", member \"" + bill.member + "\", salesman " +
         std::to_string(bill.salesman);
}

std::string lineText(const Ledger::Line& line) {
  return line.item + " as " + line.code + ", " + generalNumber(line.quantity) + " x " +
         generalNumber(line.price) + " x " + generalNumber(line.discount);
}

}  // namespace

double Ledger::Bill::quantity() const {
  double sum = 0;
  for (const Line& line : lines) sum = roundedQuantity(sum + line.quantity);
  return sum;
}

Currency Ledger::Bill::goodsAmount() const {
  Currency sum;
  for (const Line& line : lines) sum += line.money();
  return sum;
}

Ledger Ledger::read(Connection& connection) {
  requireRightBooks(connection);
  Ledger ledger;
  readBills(connection, ledger);
  readRecords(connection, ledger);
  return ledger;
}

std::set<std::string> Ledger::entries() const {
  std::set<std::string> texts;
  for (const auto& [number, bill] : bills) {
    const std::string name = "bill " + std::to_string(number);
    texts.insert(name + ": " + billText(bill));
    for (std::size_t i = 0; i < bill.lines.size(); ++i) {
      texts.insert(name + ", line " + std::to_string(i + 1) + ": " + lineText(bill.lines[i]));
    }
  }
  for (const auto& [item, quantity] : stock) {
    texts.insert("stock of " + item + ": " + generalNumber(quantity));
  }
  for (const auto& [number, member] : members) {
    texts.insert("member " + number + ": card " + twoDecimals(member.balance) + ", purchases " +
                 twoDecimals(member.totalSpent) + ", points " + std::to_string(member.points));
  }
  for (std::size_t i = 0; i < returns.size(); ++i) {
    texts.insert("return " + std::to_string(i + 1) + " of bill " + std::to_string(returns[i].bill) +
                 ": " + generalNumber(returns[i].quantity) + " of " + returns[i].item + " for " +
                 twoDecimals(returns[i].money));
  }
  for (std::size_t i = 0; i < topUps.size(); ++i) {
    texts.insert("top-up " + std::to_string(i + 1) + " of " + topUps[i].card + ": paid " +
                 twoDecimals(topUps[i].paid) + ", credited " + twoDecimals(topUps[i].credited) +
                 ", balance " + twoDecimals(topUps[i].balance) +
                 (topUps[i].isComplete ? "" : ", not completed"));
  }
  return texts;
}

std::string difference(const Ledger& expected, const Ledger& found) {
  const std::set<std::string> wanted = expected.entries();
  const std::set<std::string> there = found.entries();
  std::vector<std::string> missing, added;
  std::set_difference(wanted.begin(), wanted.end(), there.begin(), there.end(),
                      std::back_inserter(missing));
  std::set_difference(there.begin(), there.end(), wanted.begin(), wanted.end(),
                      std::back_inserter(added));
  std::string text;
  for (const std::string& entry : missing) text += "  missing: " + entry + "\n";
  for (const std::string& entry : added) text += "  found:   " + entry + "\n";
  return text;
}
