#include "kill/Ledger.h"

#include <stdexcept>
#include <tuple>

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
double number(const Rows& row, const char* column) {
  return row.number(column).value_or(0);
}

void requireRightBooks(Connection& connection) {
  std::string faults = bookFaults(connection);
  Rows open = connection.query(
      "select id, (select count(*) from sell where state = 0) as bills, "
      "(select count(*) from sellProducts where sellId = sell.id) as lines "
      "from sell where state = 0");
  while (open.next()) {
    if (whole(open, "bills") > 1 || whole(open, "lines") > 0) {
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
    Ledger::Bill& bill = ledger.bills[whole(rows, "id")];
    bill.member = rows.text("member");
    bill.card = rows.text("card_no");
    bill.slip = rows.text("phone_slip");
    bill.amount = money(rows, "amount");
    bill.salesman = whole(rows, "salesman");
    for (const TenderKind& kind : tenderKinds())
      bill.paidWith(kind.tender) = money(rows, kind.column);
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
                                  .discount = Discount(number(lines, "discount")),
                                  .quantity = number(lines, "amount"),
                                  .ratio = whole(lines, "ratio")});
  }
}

void readRecords(Connection& connection, Ledger& ledger) {
  Rows stock = connection.query("select spbm, quantity from stock");
  while (stock.next()) ledger.stock[stock.text("spbm")] = number(stock, "quantity");
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
                              number(returns, "quantity"), money(returns, "money")});
  }
  Rows topUps = connection.query("select * from cardStored order by id");
  while (topUps.next()) {
    ledger.topUps.push_back({topUps.text("cardbh"), money(topUps, "inMoney"),
                             money(topUps, "addmoney"), money(topUps, "commerce"),
                             whole(topUps, "complete") != 0});
  }
}

template <class Part>
std::string text(const Part& part) {
  if constexpr (std::is_convertible_v<Part, std::string>) {
    return part;
  } else {
    return generalNumber(part);
  }
}

}  // namespace

Ledger Ledger::read(Connection& connection) {
  requireRightBooks(connection);
  Ledger ledger;
  readBills(connection, ledger);
  readRecords(connection, ledger);
  return ledger;
}

std::set<std::string> Ledger::entries() const {
  std::set<std::string> texts;
  const auto add = [&texts](const auto&... parts) { texts.insert((text(parts) + ...)); };
  for (const auto& [number, bill] : bills) {
    std::string paid;
    for (std::size_t i = 0; i < kTenders; ++i)
      paid += text(tenderKinds()[i].column) + " " + text(bill.tendered[i]) + ", ";
    add("bill ", number, ": amount ", bill.amount, ", ", paid, "card \"", bill.card, "\", slip \"",
        bill.slip, "\", member \"", bill.member, "\", salesman ", bill.salesman);
    int position = 0;
    for (const Line& line : bill.lines)
      add("bill ", number, ", line ", ++position, ": ", line.item, " as ", line.code, ", ",
          line.quantity, " x ", line.price, " x ", line.discount);
  }
  for (const auto& [item, quantity] : stock) add("stock of ", item, ": ", quantity);
  for (const auto& [number, member] : members)
    add("member ", number, ": card ", member.balance, ", purchases ", member.totalSpent,
        ", points ", member.points);
  int record = 0;
  for (const Return& each : returns)
    add("return ", ++record, " of bill ", each.bill, ": ", each.quantity, " of ", each.item,
        " for ", each.money);
  record = 0;
  for (const TopUp& each : topUps)
    add("top-up ", ++record, " of ", each.card, ": paid ", each.paid, ", credited ", each.credited,
        ", balance ", each.balance, each.isComplete ? "" : ", not completed");
  return texts;
}

std::string difference(const Ledger& expected, const Ledger& found) {
  const std::set<std::string> wanted = expected.entries(), there = found.entries();
  std::string text;
  for (const auto& [these, those, what] :
       {std::tuple(&wanted, &there, "  missing: "), {&there, &wanted, "  found:   "}}) {
    for (const std::string& entry : *these)
      if (!those->contains(entry)) text.append(what).append(entry) += '\n';
  }
  return text;
}
