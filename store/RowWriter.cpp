#include "store/RowWriter.h"

#include <utility>

#include "store/Connection.h"

namespace {

/// "a=?, b=?" or "a=? and b=?"
std::string assignments(const RowWriter::Names& names, const char* separator) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : separator) + name + "=?";
  return text;
}

}  // namespace

RowWriter::RowWriter(Connection& connection, const std::string& table, const Names& keys,
                     const Names& updated, const Names& columns)
    : connection_(connection),
      updateText_("update or fail " + table + " set " + assignments(updated, ", ") + " where " +
                  assignments(keys, " and ")) {
  std::string names, marks;
  for (const std::string& column : columns) {
    names += (names.empty() ? "" : ", ") + column;
    marks += marks.empty() ? "?" : ", ?";
  }
  insertText_ = kInsertWithoutCopies + table + " (" + names + ") values (" + marks + ")";
}

bool RowWriter::update(std::vector<Value> values) {
  return connection_.runBound(updateText_.c_str(), std::move(values)) > 0;
}

void RowWriter::insert(std::vector<Value> values) {
  connection_.runBound(insertText_.c_str(), std::move(values));
}
