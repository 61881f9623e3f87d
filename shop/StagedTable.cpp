#include "shop/StagedTable.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalBase.h"
#include "store/Connection.h"

namespace {

RowWriter::Names namesOf(const Table& table, std::size_t first, std::size_t last) {
  RowWriter::Names names;
  for (std::size_t index = first; index < last; ++index) {
    names.emplace_back(table.columns[index].name);
  }
  return names;
}

RowWriter::Names allNames(const Table& table) {
  return namesOf(table, 0, table.columns.size());
}
RowWriter::Names keyNames(const Table& table) {
  return namesOf(table, 0, table.keyColumns);
}

RowWriter::Names withRun(RowWriter::Names names) {
  names.insert(names.begin(), "run");
  return names;
}

std::string listed(const RowWriter::Names& names) {
  std::string text;
  for (const std::string& name : names) text.append(text.empty() ? "" : ", ").append(name);
  return text;
}

std::string runsUpTo(std::int64_t last) {
  std::string runs = "0";
  for (std::int64_t run = 1; run <= last; ++run) runs.append(", ").append(std::to_string(run));
  return runs;
}

}  // namespace

StagedTable::StagedTable(Connection& connection, Table table)
    : connection_(connection),
      table_(std::move(table)),
      staged_(std::string(table_.name) + "_in"),
      columns_(listed(allNames(table_))),
      keys_(listed(keyNames(table_))),
      toStage_(connection, staged_, {"run"}, {"run"}, withRun(allNames(table_))),
      toTable_(connection, table_.name, keyNames(table_),
               namesOf(table_, table_.keyColumns, table_.columns.size()), allNames(table_)) {}

void StagedTable::add(std::int64_t run, TableRow row) {
  row.insert(row.begin(), toValue(run));
  toStage_.insert(std::move(row));
}

std::int64_t StagedTable::move(int rows) {
  const std::optional<Slice> slice = lowest(rows);
  if (!slice) return 0;
  updateKnown(*slice);
  connection_.runBound(insertText(*slice).c_str(), slice->bound);
  noteStock(*slice);
  return takeOut(*slice);
}

void StagedTable::updateKnown(const Slice& slice) {
  const std::string query = "select " + columns_ + waitingIn(slice, "exists");
  Rows waiting = connection_.queryBound(query.c_str(), slice.bound);
  while (waiting.next()) {
    TableRow row;
    row.reserve(table_.columns.size());
    for (const Column& column : table_.columns) {
      row.push_back(waiting.isNull(column.name) ? Value() : toValue(waiting.text(column.name)));
    }
    std::rotate(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(table_.keyColumns),
                row.end());
    static_cast<void>(toTable_.update(std::move(row)));
  }
}

void StagedTable::noteStock(const Slice& slice) const {
  if (std::string_view(table_.name) != "stock" || !Journal(connection_).isOn()) return;
  std::vector<std::string> items;
  Rows rows =
      connection_.queryBound(("select spbm from " + staged_ + slice.where).c_str(), slice.bound);
  while (rows.next()) items.push_back(rows.text("spbm"));
  JournalBase(connection_).noteStock(items);
}

std::string StagedTable::insertText(const Slice& slice) const {
  std::string text = kInsertWithoutCopies;
  text.append(table_.name).append(" (").append(columns_).append(") select ").append(columns_);
  return text.append(waitingIn(slice, "not exists")).append(" order by ").append(keys_);
}

/// Those of a slice that the table has a row for, or has none for.
std::string StagedTable::waitingIn(const Slice& slice, const char* existence) const {
  std::string text = " from ";
  text.append(staged_).append(" as staged").append(slice.where).append(" and ");
  text.append(existence).append(" (select 1 from ").append(table_.name).append(" as own where ");
  for (std::size_t key = 0; key < table_.keyColumns; ++key) {
    const char* name = table_.columns[key].name;
    text.append(key == 0 ? "own." : " and own.").append(name).append(" = staged.").append(name);
  }
  return text.append(")");
}

std::int64_t StagedTable::remove(int rows) {
  const std::optional<Slice> slice = lowest(rows);
  return slice ? takeOut(*slice) : 0;
}

std::int64_t StagedTable::takeOut(const Slice& slice) {
  return connection_.runBound(("delete from " + staged_ + slice.where).c_str(), slice.bound);
}

// Up to the lowest of the keys that stand in each run at its share of the rows: never many more.
std::optional<StagedTable::Slice> StagedTable::lowest(int rows) const {
  Rows last = connection_.query(("select max(run) as run from " + staged_).c_str());
  if (!last.next() || last.isNull("run")) return std::nullopt;
  const std::int64_t lastRun = last.whole("run").value();
  const std::int64_t share = std::max<std::int64_t>(1, rows / (lastRun + 1));
  Slice slice{" where run in (" + runsUpTo(lastRun) + ")", {}};
  std::optional<std::string> end;
  for (std::int64_t run = 0; run <= lastRun; ++run) {
    const std::optional<std::string> key = keyBehind(run, share);
    if (key && (!end || asciiLower(*key) < asciiLower(*end))) end = key;
  }
  if (end) {
    slice.where.append(" and ").append(table_.columns.front().name).append(" <= ?");
    slice.bound.push_back(toValue(*end));
  }
  return slice;
}

std::optional<std::string> StagedTable::keyBehind(std::int64_t run, std::int64_t rows) const {
  std::string query = "select ";
  query.append(table_.columns.front().name).append(" as code from ").append(staged_);
  query.append(" where run = ? order by ").append(keys_).append(" limit 1 offset ?");
  Rows found = connection_.query(query.c_str(), run, rows);
  if (!found.next()) return std::nullopt;
  return found.text("code");
}
