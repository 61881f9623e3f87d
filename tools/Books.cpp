#include "tools/Books.h"

#include <optional>
#include <utility>

#include "base/Currency.h"
#include "base/NumberText.h"
#include "store/Connection.h"
#include "store/Snapshot.h"
#include "store/StoreError.h"

namespace {

// Rounding to jiao and then to yuan moves an amount by at most 0.55.
constexpr Currency kLargestRounding = Currency::fromScaled(5500);

std::string numbered(const char* what, std::int64_t number) {
  return std::string(what) + " " + std::to_string(number);
}

}  // namespace

/// One settled bill, as it says and as its lines add up.
struct Books::Sums {
  std::int64_t bill = 0;
  double quantity = 0, lineQuantity = 0;
  Currency amount, lineAmount;
  bool isReadable = true;

  void setBill(const Rows& row) {
    bill = row.whole("id").value();
    quantity = row.number("quantity").value_or(0);
    amount = row.currency("goods_amount").value_or(Currency());
  }
  void addLine(const Rows& row) {
    lineQuantity = roundedQuantity(lineQuantity + row.number("line_amount").value_or(0));
    lineAmount += row.currency("line_money").value_or(Currency());
  }
};

Books::Books(Connection& connection, Report report)
    : connection_(connection), report_(std::move(report)) {}

BooksSummary Books::check() {
  found_ = {};
  const Snapshot oneState(connection_);  // the till goes on selling
  checkEngine();
  checkBills();
  checkPayments();
  checkNumbers();
  checkLines();
  checkLineMoney();
  checkReturns();
  checkMembers();
  checkPurchases();
  checkStock();
  count();
  return found_;
}

void Books::checkEngine() {
  Rows rows = connection_.query("pragma integrity_check");
  while (rows.next()) {
    const std::string answer = rows.text("integrity_check");
    if (answer != "ok") fault("数据文件损坏：" + answer);
  }
}

void Books::checkBills() {
  Rows strange = connection_.query("select id, state from sell where state not in (0, 1)");
  while (strange.next()) {
    fault(numbered("单据", strange.whole("id").value()) + " 的状态不是未结也不是已结：" +
          strange.text("state"));
  }
  Rows unowned = connection_.query(
      "select id, operator_id from sell "
      "where state = 0 and operator_id not in (select id from operators)");
  while (unowned.next()) {
    fault(numbered("未结的单据", unowned.whole("id").value()) + " 的操作员 " +
          unowned.text("operator_id") + " 不存在");
  }
  Rows marked = connection_.query("select id from sell where state = 1 and paid <> 0");
  while (marked.next()) {
    fault(numbered("单据", marked.whole("id").value()) + " 已结，却还带着收款未存的标记");
  }
}

void Books::checkPayments() {
  Rows rows = connection_.query(
      "select id, goods_amount, amount, card_pay, card_no from sell where state = 1 order by id");
  while (rows.next()) {
    const std::string bill = numbered("单据", rows.whole("id").value());
    try {
      const Currency due = rows.currency("amount").value_or(Currency());
      const Currency goods = rows.currency("goods_amount").value_or(Currency());
      const Currency card = rows.currency("card_pay").value_or(Currency());
      if (due - goods > kLargestRounding || goods - due > kLargestRounding) {
        fault(bill + " 的应收是 " + twoDecimals(due) + "，商品金额是 " + twoDecimals(goods) +
              "，抹零到不了这么多");
      }
      if (card.isZero()) continue;
      if (rows.text("card_no").empty()) fault(bill + " 用储值卡付款，却没有卡号");
      if (card < roundedToFen(due)) {
        fault(bill + " 的储值卡付款是 " + twoDecimals(card) + "，不够应收的 " + twoDecimals(due));
      }
    } catch (const StoreError&) {
      fault(bill + " 的应收或付款不是数字");
    }
  }
}

// The engine gives the next number from what it remembers here.
void Books::checkNumbers() {
  Rows rows = connection_.query(
      "select (select max(id) from sell) as largest,"
      " coalesce((select seq from sqlite_sequence where name = 'sell'), 0) as last");
  rows.next();
  const std::int64_t largest = rows.whole("largest").value_or(0);
  if (rows.whole("last").value_or(0) < largest) {
    fault("流水号会重复：最大的单据是 " + std::to_string(largest) + "，下一个号却从 " +
          rows.text("last") + " 数起");
  }
}

void Books::checkSums(const Sums& bill) {
  if (!bill.isReadable) return;
  if (roundedQuantity(bill.quantity) != bill.lineQuantity) {
    fault(numbered("单据", bill.bill) + " 的数量是 " + generalNumber(bill.quantity) +
          "，商品行加起来是 " + generalNumber(bill.lineQuantity));
  }
  if (bill.amount != bill.lineAmount) {
    fault(numbered("单据", bill.bill) + " 的商品金额是 " + twoDecimals(bill.amount) +
          "，商品行加起来是 " + twoDecimals(bill.lineAmount));
  }
}

// Walks the bills and their lines together, one bill at a time in hand.
void Books::checkLines() {
  Rows rows = connection_.query(
      "select s.id as id, s.quantity as quantity, s.goods_amount as goods_amount, "
      "l.id as line, l.amount as line_amount, l.money as line_money "
      "from sell s left join sellProducts l on l.sellId = s.id where s.state = 1 order by s.id");
  std::optional<Sums> bill;
  while (rows.next()) {
    const std::int64_t number = rows.whole("id").value();
    if (!bill || bill->bill != number) {
      if (bill) checkSums(*bill);
      bill.emplace().bill = number;
    }
    try {
      bill->setBill(rows);
      bill->addLine(rows);
    } catch (const StoreError&) {
      bill->isReadable = false;
      fault(numbered("单据", number) + " 或它的商品行 " + rows.text("line") +
            " 的数量或金额不是数字");
    }
  }
  if (bill) checkSums(*bill);
  Rows orphans = connection_.query(
      "select id, sellId, name from sellProducts where sellId not in (select id from sell)");
  while (orphans.next()) {
    fault(numbered("商品行", orphans.whole("id").value()) + "（" + orphans.text("name") +
          "）的单据 " + orphans.text("sellId") + " 不存在");
  }
}

void Books::checkLineMoney() {
  Rows rows = connection_.query(
      "select id, sellId, name, amount, price, discount, money from sellProducts");
  while (rows.next()) {
    try {
      const Currency money = rows.currency("money").value_or(Currency());
      const Currency right =
          lineAmount(rows.currency("price").value_or(Currency()), rows.number("amount").value_or(0),
                     Discount(rows.number("discount").value_or(1)));
      if (money == right) continue;
      fault(numbered("单据", rows.whole("sellId").value_or(0)) + " 的商品行 " + rows.text("id") +
            "（" + rows.text("name") + "）金额是 " + twoDecimals(money) +
            "，按单价、数量、折扣应是 " + twoDecimals(right));
    } catch (const Failure&) {
      fault(numbered("单据", rows.whole("sellId").value_or(0)) + " 的商品行 " + rows.text("id") +
            " 算不出金额");
    }
  }
}

void Books::checkReturns() {
  Rows rows = connection_.query(
      "select u.id as id, u.item_id as item_id, u.sell_id as sell_id from un_sell u "
      "left join sellProducts l on l.id = u.item_id and l.sellId = u.sell_id where l.id is null");
  while (rows.next()) {
    fault(numbered("退货", rows.whole("id").value()) + " 所退的商品行 " + rows.text("item_id") +
          " 不在单据 " + rows.text("sell_id") + " 里");
  }
  // A return lowers its line: what is left below zero was never sold.
  Rows beyond = connection_.query(
      "select l.id as id, l.sellId as bill, l.name as name, l.amount as amount from sellProducts l "
      "where l.amount < 0 and l.id in (select item_id from un_sell)");
  while (beyond.next()) {
    fault("单据 " + beyond.text("bill") + " 的商品行 " + beyond.text("id") + "（" +
          beyond.text("name") + "）退的比卖的多，还剩 " + beyond.text("amount"));
  }
  Rows nothing = connection_.query("select id, quantity from un_sell where not quantity > 0");
  while (nothing.next()) {
    fault(numbered("退货", nothing.whole("id").value()) + " 的数量不对：" +
          nothing.text("quantity"));
  }
}

void Books::checkMembers() {
  Rows rows = connection_.query("select bh, card from member where card < 0");
  while (rows.next()) {
    fault("储值卡 " + rows.text("bh") + " 的余额是负的：" + rows.text("card"));
  }
}

// Goods taken back lower the purchases by a refund that the cashier names, so that a member's bills
// no longer tell them.
void Books::checkPurchases() {
  Rows rows = connection_.query(
      "select m.bh as bh, m.total_spent as total, sum(s.amount) as bought from member m "
      "join sell s on s.member_id = m.id and s.state = 1 "
      "where m.id not in (select r.member_id from sell r join un_sell u on u.sell_id = r.id) "
      "group by m.id having round(sum(s.amount) - m.total_spent, 2) > 0");
  while (rows.next()) {
    fault("会员 " + rows.text("bh") + " 的累计消费是 " + rows.text("total") +
          "，少于已结单据的合计 " + generalNumber(roundedQuantity(rows.number("bought").value())) +
          "（导入时没有改小过，就是漏记）");
  }
}

void Books::checkStock() {
  Rows rows = connection_.query(
      "select spbm, quantity from stock where typeof(quantity) not in ('integer', 'real')");
  while (rows.next()) {
    fault("商品 " + rows.text("spbm") + " 的库存不是数字：“" + rows.text("quantity") + "”");
  }
}

void Books::count() {
  Rows rows = connection_.query(
      "select (select count(*) from sell) as bills, "
      "(select count(*) from sell where state = 0) as open_bills, "
      "(select count(*) from sell where paid = 1 and state = 0) as paid_bills, "
      "(select count(*) from sellProducts) as lines, "
      "(select count(*) from un_sell) as returns, "
      "(select count(*) from stock) as stock_rows");
  rows.next();
  found_.bills = rows.whole("bills").value();
  found_.openBills = rows.whole("open_bills").value();
  found_.paidBills = rows.whole("paid_bills").value();
  found_.lines = rows.whole("lines").value();
  found_.returns = rows.whole("returns").value();
  found_.stockRows = rows.whole("stock_rows").value();
}

void Books::fault(const std::string& text) {
  ++found_.faults;
  report_(text);
}
