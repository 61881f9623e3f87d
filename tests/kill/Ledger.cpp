#include "kill/Ledger.h"

#include <stdexcept>

#include "BookFaults.h"
#include "store/Connection.h"

namespace {

// A union of names and figures each; every kind of payment is one more.
constexpr const char* kMoney =
    "select 'card of ' || bh as name, card as figure from member "
    "union all select 'purchases of ' || bh, total_spent from member "
    "union all select 'return ' || id || ' on bill ' || sell_id, money from un_sell "
    "union all select 'top-up ' || id || ' of ' || cardbh || ', paid', inMoney from cardStored "
    "union all select 'top-up ' || id || ', credited', addmoney from cardStored "
    "union all select 'top-up ' || id || ', balance', commerce from cardStored "
    "union all select 'shift ' || id || ', float', cash_float from shift "
    "union all select 'cash of bill ' || id || ' in shift ' || shift, cash_kept from sell "
    "where state = 1 "
    "union all select 'cash of return ' || id || ' in shift ' || shift, money from un_sell "
    "union all select 'cash of top-up ' || id || ' in shift ' || shift, inMoney from cardStored "
    "where complete = 1 "
    "union all select 'bill ' || id || ', amount', amount from sell where state = 1 ";
constexpr const char* kNumbers =
    "select 'stock of ' || spbm as name, quantity as figure from stock "
    "union all select 'points of ' || bh, points from member "
    "union all select 'return ' || u.id || ', pieces of ' || bm, u.quantity from un_sell u "
    "join sellProducts l on l.id = item_id "
    "union all select 'top-up ' || id || ', completed', complete from cardStored "
    "union all select 'entries of ' || case when kind = 'goods_returned' then 'returns on bill ' "
    "when kind = 'top_up_begun' then 'top-up ' when kind = 'top_up_loaded' then 'loading ' "
    "when kind like 'shift%' then kind || ' ' else 'bill ' end || touches, count(*) from fact "
    "where kind in ('bill_settled', "
    "'bill_completed', 'goods_returned', 'top_up_begun', 'top_up_loaded', 'shift_opened', "
    "'shift_counted', 'shift_closed') group by 1 "
    "union all select 'shift ' || id || ', closed', closed is not null from shift "
    "union all select 'shift ' || id || ', counts', (select count(distinct attempt) from "
    "shift_count where shift = id) from shift "
    "union all select 'bill ' || s.id || ' of member \"' || coalesce(bh, '') || '\", card \"' || "
    "coalesce(card_no, '') || '\", slip \"' || coalesce(phone_slip, '') || '\", salesman', "
    "salesman from sell s left join member m on m.id = member_id where state = 1 "
    "union all select 'bill ' || sellId || ', line ' || (select count(*) from sellProducts b "
    "where b.sellId = l.sellId and b.id < l.id) || ': ' || bm || ' as ' || entry_code || ' x ' || "
    "price || ' x ' || discount, amount from sellProducts l";

void requireRightBooks(Connection& connection) {
  std::string faults = bookFaults(connection);
  Rows open = connection.query(
      "select id, (select count(*) from sell where state = 0) as bills, "
      "(select count(*) from sellProducts where sellId = sell.id) as lines "
      "from sell where state = 0");
  while (open.next()) {
    if (open.whole("bills") != 1 || open.whole("lines") != 0)
      faults += "open bill " + open.text("id") + " with " + open.text("lines") + " lines\n";
  }
  if (!faults.empty()) throw std::runtime_error(faults);
}

template <class Figures>
std::string onlyIn(const Figures& these, const Figures& those, const char* what) {
  std::string text;
  for (const auto& [name, figure] : these) {
    const auto other = those.find(name);
    if (other == those.end() || other->second != figure)
      text.append(what).append(name).append(": ").append(generalNumber(figure)) += '\n';
  }
  return text;
}

}  // namespace

void Ledger::put(int number, const Bill& bill) {
  bills[number] = bill;
  const std::string name = "bill " + std::to_string(number);
  money[name + ", amount"] = bill.goodsAmount();
  for (std::size_t i = 0; i < kTenders; ++i)
    money[name + ", " + tenderKinds()[i].column] = bill.tendered[i];
  numbers[name + " of member \"" + bill.member + "\", card \"" + bill.card + "\", slip \"" +
          bill.slip + "\", salesman"] = bill.salesman;
  for (std::size_t i = 0; i < bill.lines.size(); ++i) {
    const Line& line = bill.lines[i];
    numbers[name + ", line " + std::to_string(i) + ": " + line.item + " as " + line.code + " x " +
            generalNumber(line.price) + " x " + generalNumber(line.discount)] = line.quantity;
  }
}

void Ledger::addStock(const Line& line, double quantity) {
  double& stock = numbers["stock of " + line.item];
  stock = roundedQuantity(stock + roundedQuantity(quantity * line.ratio));
}

Ledger Ledger::read(Connection& connection) {
  requireRightBooks(connection);
  Ledger ledger;
  std::string statement = kMoney;
  for (const TenderKind& kind : tenderKinds()) {
    const std::string column = kind.column;
    statement.append("union all select 'bill ' || id || ', ").append(column).append("', ");
    statement.append(column).append(" from sell where state = 1 ");
  }
  Rows money = connection.query(statement.c_str());
  while (money.next())
    ledger.money[money.text("name")] = money.currency("figure").value_or(Currency());
  Rows numbers = connection.query(kNumbers);
  while (numbers.next())
    ledger.numbers[numbers.text("name")] = numbers.number("figure").value_or(0);
  Rows records = connection.query(
      "select (select count(*) from un_sell) as returns, (select count(*) from cardStored) as "
      "tops, (select count(*) from shift) as shifts");
  records.next();
  ledger.returns = static_cast<int>(records.whole("returns").value());
  ledger.shifts = static_cast<int>(records.whole("shifts").value());
  ledger.topUps = static_cast<int>(records.whole("tops").value());
  return ledger;
}

std::string difference(const Ledger& expected, const Ledger& found) {
  return onlyIn(expected.money, found.money, "  missing: ") +
         onlyIn(expected.numbers, found.numbers, "  missing: ") +
         onlyIn(found.money, expected.money, "  found:   ") +
         onlyIn(found.numbers, expected.numbers, "  found:   ");
}
