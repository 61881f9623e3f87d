#include "tools/TakeOverSums.h"

#include "base/Words.h"
#include "saleslib/ClsSysParam.h"
#include "shop/Refusal.h"
#include "store/Connection.h"

namespace {

/// Empty for none.
std::string counted(const char* text, std::int64_t count) {
  return count == 0 ? "" : Words::tr(text, count);
}

}  // namespace

std::string sumUpBills(Connection& connection, const AccessPlan& plan) {
  const PlannedTable* bills = plan.target("sell");
  if (bills == nullptr) return "";
  std::string columns;
  const auto sumUp = [&](const char* column, const char* statement) {
    if (bills->has(column)) return;
    connection.run(statement);
    columns += (columns.empty() ? "" : Words::tr("、")) + std::string(column);
  };
  sumUp("quantity",
        "update sell set quantity = round((select total(amount) from sellProducts"
        " where sellId = sell.id), 6)");
  sumUp("goods_amount",
        "update sell set goods_amount = round((select total(money) from sellProducts"
        " where sellId = sell.id), 4)");
  sumUp("amount", "update sell set amount = goods_amount");
  std::string note = bills->has("state") ? "" : Words::tr("单据原来没有 state，都算已结账的。");
  if (!columns.empty()) note += Words::tr("单据的 %1 原来没有，是按商品行加起来的。", columns);
  return note;
}

std::string sumUpPurchases(Connection& connection, const AccessPlan& plan) {
  const PlannedTable* members = plan.target("member");
  if (members == nullptr || members->has("total_spent")) return "";
  const std::int64_t changed = connection.run(
      "update member set total_spent = round((select total(amount) from sell"
      " where member_id = member.id), 4)"
      " where id in (select member_id from sell where amount <> 0)");
  return counted(Words::mark("%1 个会员的累计消费原来没有，是按单据加起来的。"), changed);
}

std::string beginStock(Connection& connection, const AccessPlan& plan) {
  const std::int64_t begun = connection.run(
      "insert into stock (spbm, quantity) select bm, 0 from sellProducts"
      " where bm not in (select spbm from stock) group by bm");
  if (plan.target("stock") == nullptr) {
    return Words::tr("库存没有带来，都从 0 数起；可以用 tilladmin import --table stock 导入。");
  }
  return counted(Words::mark("%1 种卖过的商品没有库存，从 0 数起。"), begun);
}

std::string recordBalances(Connection& connection) {
  const std::int64_t recorded = connection.run(
      "insert into cardStored (cardbh, addmoney, inMoney, commerce, bz, complete)"
      // untranslated: stored with the top-up
      " select m.bh, round(m.card - t.commerce, 4), 0, m.card, '带来时的余额', 1"
      " from (select max(id) as id from cardStored group by cardbh) last"
      " join cardStored t on t.id = last.id join member m on m.bh = t.cardbh"
      " where m.card > t.commerce or round(t.commerce - m.card, 4) > (select"
      " round(total(card_pay), 4) from sell where card_no = m.bh)");
  return counted(
      Words::mark("%1 张储值卡的余额与充值和付款的记录对不上，按余额补了一条充值记录（付款 0）。"),
      recorded);
}

std::string nameRounding(Connection& connection) {
  Rows rounded =
      connection.query("select count(*) as bills from sell where amount <> goods_amount");
  rounded.next();
  const std::int64_t bills = rounded.whole("bills").value_or(0);
  if (bills == 0) return "";
  ClsSysParam parameters;
  parameters.Conn(connection);
  if (const std::string refused = parameters.set("RoundJiao", parameters.RoundJiao() ? "1" : "0");
      !refused.empty()) {
    throw Refusal(refused);
  }
  return Words::tr(
      "%1 张单据的应收与商品金额不同，原来抹过零：店铺参数 RoundJiao "
      "现在写明了它的值，抹零照旧不变。",
      bills);
}

std::string nameOperators(Connection& connection) {
  Rows rows = connection.queryBound(
      "select group_concat(operator_id, ?) as numbers from"
      " (select distinct operator_id from sell order by operator_id)",
      {Words::tr("、")});
  rows.next();
  const std::string numbers = rows.text("numbers");
  return numbers.empty()
             ? ""
             : Words::tr(
                   "单据是这些操作员做的：%1；请用 tilladmin operator add 按原来的号建立他们。",
                   numbers);
}
