#include "tools/Exporter.h"

#include "store/Connection.h"
#include "tools/CsvRow.h"
#include "tools/Refusal.h"

namespace {

constexpr std::size_t kPieceBytes = 1 << 16;
constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";  // without it spreadsheets take GBK

std::string queryText(const Table& table) {
  std::string columns, order;
  for (std::size_t index = 0; index < table.columns.size(); ++index) {
    const std::string name = table.columns[index].name;
    columns += (index == 0 ? "" : ", ") + name;
    if (index < table.keyColumns) order += (index == 0 ? "" : ", ") + name;
  }
  return "select " + columns + " from " + table.name + " order by " + order;
}

void writeOut(CsvRow& row, std::ostream& out) {
  out << row.text();
  row.clear();
  if (!out) throw Refusal("写不下去，磁盘可能满了，导出的文件不完整。");
}

}  // namespace

std::int64_t exportTable(Connection& connection, const Table& table, std::ostream& out) {
  CsvRow row;
  out << kByteOrderMark;
  for (const Column& column : table.columns) row.add(column.name);
  row.end();
  std::int64_t count = 0;
  Rows rows = connection.query(queryText(table).c_str());
  for (; rows.next(); ++count) {
    for (const Column& column : table.columns) row.add(rows.text(column.name));
    row.end();
    if (row.text().size() > kPieceBytes) writeOut(row, out);
  }
  writeOut(row, out);
  out.flush();
  if (!out) writeOut(row, out);
  return count;
}
