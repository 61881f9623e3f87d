#include "tools/TakeOverSums.h"

#include "saleslib/ClsSysParam.h"
#include "shop/Refusal.h"
#include "store/Connection.h"

namespace {

std::string counted(const char* before, std::int64_t count, const char* behind) {
  return count == 0 ? "" : before + std::to_string(count) + behind;
}

}  // namespace

std::string sumUpBills(Connection& connection, const AccessPlan& plan) {
  const PlannedTable* bills = plan.target("sell");
  if (bills == nullptr) return "";
  std::string columns;
  const auto sumUp = [&](const char* column, const char* statement) {
    if (bills->has(column)) return;
    connection.run(statement);
    columns += (columns.empty() ? "" : "、") + std::string(column);
  };
  sumUp("quantity",
        "update sell set quantity = round((select total(amount) from sellProducts"
        " where sellId = sell.id), 6)");
  sumUp("goods_amount",
        "update sell set goods_amount = round((select total(money) from sellProducts"
        " where sellId = sell.id), 4)");
  sumUp("amount", "update sell set amount = goods_amount");
  std::string note = bills->has("state") ? "" : "单据原来没有 state，都算已结账的。";
  if (!columns.empty()) note += "单据的 " + columns + " 原来没有，是按商品行加起来的。";
  return note;
}

std::string sumUpPurchases(Connection& connection, const AccessPlan& plan) {
  const PlannedTable* members = plan.target("member");
  if (members == nullptr || members->has("total_spent")) return "";
  const std::int64_t changed = connection.run(
      "update member set total_spent = round((select total(amount) from sell"
      " where member_id = member.id), 4)"
      " where id in (select member_id from sell where amount <> 0)");
  return counted("", changed, " 个会员的累计消费原来没有，是按单据加起来的。");
}

std::string beginStock(Connection& connection, const AccessPlan& plan) {
  const std::int64_t begun = connection.run(
      "insert into stock (spbm, quantity) select bm, 0 from sellProducts"
      " where bm not in (select spbm from stock) group by bm");
  if (plan.target("stock") == nullptr) {
    return "库存没有带来，都从 0 数起；可以用 tilladmin import --table stock 导入。";
  }
  return counted("", begun, " 种卖过的商品没有库存，从 0 数起。");
}

std::string recordBalances(Connection& connection) {
  const std::int64_t recorded = connection.run(
      "insert into cardStored (cardbh, addmoney, inMoney, commerce, bz, complete)"
      " select m.bh, round(m.card - t.commerce, 4), 0, m.card, '带来时的余额', 1"
      " from (select max(id) as id from cardStored group by cardbh) last"
      " join cardStored t on t.id = last.id join member m on m.bh = t.cardbh"
      " where m.card > t.commerce or round(t.commerce - m.card, 4) > (select"
      " round(total(card_pay), 4) from sell where card_no = m.bh)");
  return counted("", recorded,
                 " 张储值卡的余额与充值和付款的记录对不上，按余额补了一条充值记录（付款 0）。");
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
  return std::to_string(bills) +
         " 张单据的应收与商品金额不同，原来抹过零：店铺参数 RoundJiao "
         "现在写明了它的值，抹零照旧不变。";
}

std::string nameOperators(Connection& connection) {
  Rows rows = connection.query(
      "select group_concat(operator_id, '、') as numbers from"
      " (select distinct operator_id from sell order by operator_id)");
  rows.next();
  const std::string numbers = rows.text("numbers");
  return numbers.empty() ? ""
                         : "单据是这些操作员做的：" + numbers +
                               "；请用 tilladmin operator add 按原来的号建立他们。";
}
