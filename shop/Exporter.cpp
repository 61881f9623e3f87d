#include "shop/Exporter.h"

#include "base/CsvRow.h"
#include "store/Connection.h"

namespace {

constexpr std::size_t kPieceBytes = 1 << 16;

std::string queryText(const Table& table) {
  std::string columns, order;
  for (std::size_t index = 0; index < table.columns.size(); ++index) {
    const std::string name = table.columns[index].name;
    columns += (index == 0 ? "" : ", ") + name;
    if (index < table.keyColumns) order += (index == 0 ? "" : ", ") + name;
  }
  return "select " + columns + " from " + table.name + " order by " + order;
}

}  // namespace

std::int64_t exportTable(Connection& connection, const Table& table, const Taker& taker) {
  CsvRow row;
  const auto passOn = [&row, &taker] {
    taker(row.text());
    row.clear();
  };
  taker(kUtf8Mark);
  for (const Column& column : table.columns) row.add(column.name);
  row.end();
  std::int64_t count = 0;
  Rows rows = connection.query(queryText(table).c_str());
  for (; rows.next(); ++count) {
    for (const Column& column : table.columns) row.add(rows.text(column.name));
    row.end();
    if (row.text().size() > kPieceBytes) passOn();
  }
  passOn();
  return count;
}
