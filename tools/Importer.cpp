#include "tools/Importer.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/Text.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/StoreError.h"
#include "store/Transaction.h"
#include "tools/CsvReader.h"
#include "tools/Refusal.h"

namespace {

constexpr std::int64_t kRowsPerProgress = 50000;
constexpr int kMostBadRows = 20;  // as many as fit on one screen

// "a=?, b=?" or "a=? and b=?"
std::string assignments(const Table& table, const std::vector<std::size_t>& columns,
                        const char* separator) {
  std::string text;
  for (const std::size_t index : columns) {
    if (!text.empty()) text += separator;
    text += std::string(table.columns[index].name) + "=?";
  }
  return text;
}

std::string shown(const std::string& field) {
  constexpr std::size_t kLongestShown = 40;
  if (field.empty()) return "空着";
  const bool isShort = characters(field) <= kLongestShown;
  return "写的是“" + (isShort ? field : firstCharacters(field, kLongestShown) + "……") + "”";
}

}  // namespace

Importer::Importer(Connection& connection, Table table, Progress progress)
    : connection_(connection), table_(std::move(table)), progress_(std::move(progress)) {}

Imported Importer::run(std::istream& text) {
  CsvReader reader(text);
  readHeader(reader);
  prepareStatements();
  Transaction transaction(connection_);
  std::int64_t rows = 0;
  while (badRowCount_ < kMostBadRows && reader.next(fields_)) {
    readRow(reader);
    if (++rows % kRowsPerProgress == 0) progress_(rows, reader.progress());
  }
  if (badRowCount_ == kMostBadRows) badRows_ += "\n……后面的行没有再看。";
  if (badRowCount_ > 0) throw Refusal("什么也没有导入：\n" + badRows_);
  updateFragmentIndex(connection_);
  transaction.commit();
  return imported_;
}

void Importer::readHeader(CsvReader& reader) {
  if (!reader.next(fields_)) throw Refusal("文件是空的，第一行应是列名。");
  for (const std::string& field : fields_) {
    const std::string name = trimmed(field);
    const std::optional<std::size_t> index = table_.indexOf(name);
    if (!index) {
      throw Refusal("表 " + std::string(table_.name) + " 没有“" + name +
                    "”这一列，什么也没有导入。");
    }
    if (std::find(present_.begin(), present_.end(), *index) != present_.end()) {
      throw Refusal("列“" + name + "”写了两次，什么也没有导入。");
    }
    present_.push_back(*index);
  }
  for (std::size_t key = 0; key < table_.keyColumns; ++key) {
    if (std::find(present_.begin(), present_.end(), key) != present_.end()) continue;
    throw Refusal("缺少“" + std::string(table_.columns[key].name) + "”这一列，什么也没有导入。");
  }
}

// One text each for the whole file, so that each is prepared once. An update leaves the key's
// columns alone, unless the file has nothing else. "or fail" keeps no copy of the pages to take a
// single statement back: a failure takes the whole import back anyway.
void Importer::prepareStatements() {
  std::vector<std::size_t> keys(table_.keyColumns);
  std::iota(keys.begin(), keys.end(), std::size_t{0});
  for (const std::size_t index : present_) {
    if (index >= table_.keyColumns) updated_.push_back(index);
  }
  if (updated_.empty()) updated_ = keys;
  const std::string name = table_.name;
  updateText_ = "update or fail " + name + " set " + assignments(table_, updated_, ", ") +
                " where " + assignments(table_, keys, " and ");
  std::string names, marks;
  for (const Column& column : table_.columns) {
    names += (names.empty() ? "" : ", ") + std::string(column.name);
    marks += marks.empty() ? "?" : ", ?";
    newRow_.push_back(column.fallback.value_or(std::monostate{}));
    const bool inFile =
        std::find(present_.begin(), present_.end(), newRow_.size() - 1) != present_.end();
    if (!column.fallback && !inFile && lacking_.empty()) lacking_ = column.name;
  }
  insertText_ = "insert or fail into " + name + " (" + names + ") values (" + marks + ")";
}

void Importer::readRow(const CsvReader& reader) {
  if (fields_.size() != present_.size()) {
    refuseRow(reader, "有 " + std::to_string(fields_.size()) + " 列，标题行有 " +
                          std::to_string(present_.size()) + " 列");
    return;
  }
  values_ = newRow_;
  for (std::size_t place = 0; place < fields_.size(); ++place) {
    const Column& column = table_.columns[present_[place]];
    std::optional<Value> value = column.valueOf(fields_[place]);
    if (!value) {
      refuseRow(reader, "“" + std::string(column.name) + "”" + std::string(column.expectation()) +
                            "，" + shown(fields_[place]));
      return;
    }
    values_[present_[place]] = *std::move(value);
  }
  if (badRowCount_ == 0) writeRow(reader);  // else the rest is read for its faults only
}

void Importer::writeRow(const CsvReader& reader) {
  try {
    std::vector<Value> bound;
    bound.reserve(updated_.size() + table_.keyColumns);
    for (const std::size_t index : updated_) bound.push_back(values_[index]);
    for (std::size_t key = 0; key < table_.keyColumns; ++key) bound.push_back(values_[key]);
    if (connection_.runBound(updateText_.c_str(), std::move(bound)) > 0) {
      ++imported_.updated;
    } else if (!lacking_.empty()) {
      refuseRow(reader, "是新的，但文件缺少“" + lacking_ + "”这一列");
    } else {
      connection_.runBound(insertText_.c_str(), values_);
      ++imported_.added;
    }
  } catch (const StoreError& error) {
    throw Refusal("第 " + std::to_string(reader.line()) + " 行存不进去，什么也没有导入：" +
                  error.what());
  }
}

void Importer::refuseRow(const CsvReader& reader, const std::string& reason) {
  if (badRowCount_++ > 0) badRows_ += '\n';
  badRows_ += "第 " + std::to_string(reader.line()) + " 行：" + reason;
}
