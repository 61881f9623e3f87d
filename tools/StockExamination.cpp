#include "tools/StockExamination.h"

#include <map>
#include <string>

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "tools/JournalState.h"

namespace {

/// What open bills have taken, by item code in lower case.
std::map<std::string, double> takenByOpen(Connection& connection) {
  std::map<std::string, double> taken;
  Rows lines = connection.query(
      "select l.bm as item, l.amount as amount, l.ratio as ratio from sell s"
      " join sellProducts l on l.sellId = s.id where s.state = 0");
  while (lines.next()) {
    double& quantity = taken[asciiLower(lines.text("item"))];
    quantity = roundedQuantity(quantity + lines.number("amount").value_or(0) *
                                              lines.number("ratio").value_or(0));
  }
  return taken;
}

}  // namespace

void examineNotedStock(const Examination& books, const JournalState& state) {
  std::map<std::string, double> expected = state.stock;
  for (const auto& [item, quantity] : takenByOpen(books.connection))
    expected[item] = roundedQuantity(expected[item] - quantity);
  Rows rows = books.connection.query(
      "select spbm, round(quantity - coalesce((select amount from down_others where tbl = 'stock'"
      " and key = spbm), 0), 6) as quantity from stock");
  while (rows.next()) {
    const auto item = expected.find(asciiLower(rows.text("spbm")));
    const double noted = item == expected.end() ? 0 : item->second;
    if (item != expected.end()) expected.erase(item);
    if (rows.text("quantity") == generalNumber(noted)) continue;
    books.fault(Words::tr("商品 %1 的库存是 %2，按日志应是 %3", rows.text("spbm"),
                          rows.text("quantity"), generalNumber(noted)));
  }
  for (const auto& [item, quantity] : expected) {
    if (quantity == 0) continue;
    books.fault(
        Words::tr("商品 %1 按日志有库存 %2，库存里却没有它了", item, generalNumber(quantity)));
  }
}
