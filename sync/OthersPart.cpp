#include "sync/OthersPart.h"

#include "store/Connection.h"

namespace {

double partTold(Connection& connection, const std::string& table, const std::string& key) {
  Rows row =
      connection.query("select amount from down_others where tbl = ? and key = ?", table, key);
  return row.next() ? row.number("amount").value_or(0) : 0;
}

void addToStock(Connection& connection, const std::string& item, double quantity) {
  const std::int64_t known = connection.run(
      "update stock set quantity = round(quantity + ?, 6) where spbm = ?", quantity, item);
  if (known > 0) return;
  connection.run(
      "insert into stock (spbm, quantity)"
      " values (coalesce((select f_spbm from spda where f_spbm = ?), ?), round(?, 6))",
      item, item, quantity);
}

}  // namespace

void followOthers(Connection& connection, const std::string& table, const std::string& key,
                  double part) {
  const double more = part - partTold(connection, table, key);
  if (more == 0) return;
  if (table == "stock") {
    addToStock(connection, key, more);
  } else {
    connection.run("update member set card = round(card + ?, 4) where bh = ?", more, key);
  }
  if (connection.run("update down_others set amount = ? where tbl = ? and key = ?", part, table,
                     key) == 0)
    connection.run("insert into down_others (tbl, key, amount) values (?, ?, ?)", table, key, part);
}

void giveOthersPart(Connection& connection, const std::string& card) {
  connection.run("update member set card = round(card + ?, 4) where bh = ?",
                 partTold(connection, "card", card), card);
}
