#include "shop/Importer.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "base/CsvReader.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalBase.h"
#include "shop/Refusal.h"
#include "shop/RowDoubts.h"
#include "shop/SheetReader.h"
#include "shop/ShownField.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int64_t kRowsPerProgress = 50000;
constexpr int kMostBadRows = 20;  // as many as fit on one screen

std::string lineText(const CsvReader& reader) {
  return Words::tr("第 %1 行", reader.line());
}

std::string columnNames(const Table& table) {
  std::string names;
  for (const Column& column : table.columns)
    names += (names.empty() ? "" : Words::tr("、")) + std::string(column.name);
  return names;
}

/// What a whole header without any comma is separated by; empty when it is one name.
const char* otherSeparator(const std::string& header) {
  constexpr std::pair<const char*, const char*> kSeparators[] = {
      {";", Words::mark("分号")},
      {"\t", Words::mark("制表符")},
      // untranslated: what separates the columns of a file
      {"，", Words::mark("中文逗号")},
      {"|", Words::mark("竖线")},
      // untranslated: what separates the columns of a file
      {"；", Words::mark("中文分号")}};
  for (const auto& [separator, name] : kSeparators) {
    if (header.find(separator) != std::string::npos) return name;
  }
  return "";
}

}  // namespace

Importer::Importer(Connection& connection, Table table, Progress progress, Accounts accounts)
    : connection_(connection),
      table_(std::move(table)),
      progress_(std::move(progress)),
      accounts_(accounts),
      isInFile_(table_.columns.size()) {}

Imported Importer::run(std::istream& text) {
  CsvReader reader(text);
  readHeader(reader);
  chooseUpdated();
  prepareWriting();
  Transaction transaction(connection_);
  Rows topUps = connection_.query("select max(id) as last from cardStored");
  lastTopUp_ = topUps.next() ? topUps.whole("last").value_or(0) : 0;
  std::int64_t rows = 0;
  while (badRowCount_ < kMostBadRows && reader.next(fields_)) {
    if (!holdsNothing(fields_)) readRow(reader);
    if (++rows % kRowsPerProgress == 0) progress_(rows, reader.progress());
  }
  if (badRowCount_ == kMostBadRows) badRows_ += Words::tr("\n……后面的行没有再看。");
  if (badRowCount_ > 0) throw Refusal(Words::tr("什么也没有导入：\n%1", badRows_));
  updateFragmentIndex(connection_);
  noteImport();
  transaction.commit();
  return imported_;
}

void Importer::noteImport() {
  Journal(connection_)
      .note(EntryKind::kImported, table_.name,
            {{"added", std::to_string(imported_.added)},
             {"updated", std::to_string(imported_.updated)}});
  const JournalBase base(connection_);
  if (equalIgnoringCase(table_.name, "stock")) base.noteStock(counted_);
  if (equalIgnoringCase(table_.name, "member")) base.noteMembers(lastTopUp_);
}

void Importer::readHeader(CsvReader& reader) {
  if (!reader.next(fields_)) throw Refusal(Words::tr("文件是空的，第一行应是列名。"));
  for (const std::string& field : fields_) {
    const std::size_t index = columnNamed(trimmed(field));
    if (isInFile_[index])
      throw Refusal(Words::tr("列“%1”写了两次，什么也没有导入。", trimmed(field)));
    isInFile_[index] = true;
    present_.push_back(index);
  }
  for (std::size_t key = 0; key < table_.keyColumns; ++key) {
    if (isInFile_[key]) continue;
    throw Refusal(Words::tr("缺少“%1”这一列，什么也没有导入。", table_.columns[key].name));
  }
}

std::size_t Importer::columnNamed(const std::string& heading) const {
  if (const auto index = table_.indexOf(heading)) return *index;
  const std::string separator = fields_.size() == 1 ? otherSeparator(heading) : "";
  if (!separator.empty()) {
    throw Refusal(Words::tr(
        "各列之间要用英文逗号分开，这个文件用的是%1，什么也没有导入。请另存为逗号分隔的 CSV 文件。",
        separator));
  }
  throw Refusal(Words::tr("表 %1 没有“%2”这一列，什么也没有导入。可以有的列：%3。", table_.name,
                          (hasControlCharacter(heading) ? shownField(heading) : heading),
                          columnNames(table_)));
}

// An update leaves the key's columns alone, unless it has nothing else to write.
void Importer::chooseUpdated() {
  for (const std::size_t index : present_) {
    if (index < table_.keyColumns) continue;
    if (table_.columns[index].isAccount && accounts_ == Accounts::kKeep) {
      imported_.keptAccounts = true;
    } else {
      updated_.push_back(index);
    }
  }
  if (!updated_.empty()) return;
  updated_.resize(table_.keyColumns);
  std::iota(updated_.begin(), updated_.end(), std::size_t{0});
}

void Importer::prepareWriting() {
  const auto nameOf = [this](std::size_t index) -> std::string {
    return table_.columns[index].name;
  };
  RowWriter::Names columns, updated;
  for (std::size_t index = 0; index < table_.columns.size(); ++index) {
    const Column& column = table_.columns[index];
    columns.push_back(nameOf(index));
    newRow_.push_back(column.fallback.value_or(std::monostate{}));
    if (!column.fallback && !isInFile_[index] && lacking_.empty()) lacking_ = column.name;
  }
  std::ranges::transform(updated_, std::back_inserter(updated), nameOf);
  const RowWriter::Names keys(columns.begin(),
                              columns.begin() + static_cast<std::ptrdiff_t>(table_.keyColumns));
  writer_.emplace(connection_, table_.name, keys, updated, columns);
}

void Importer::readRow(const CsvReader& reader) {
  if (fields_.size() != present_.size()) {
    refuseRow(reader, Words::tr("有 %1 列，标题行有 %2 列", fields_.size(), present_.size()));
    return;
  }
  if (!readValues(reader)) return;
  if (const std::string doubts = doubtsOf(table_, values_, isInFile_); !doubts.empty()) {
    doubtRow(reader, doubts);
  }
  if (badRowCount_ == 0) writeRow(reader);  // else the rest is read for its faults only
}

bool Importer::readValues(const CsvReader& reader) {
  values_ = newRow_;
  for (std::size_t place = 0; place < fields_.size(); ++place) {
    const Column& column = table_.columns[present_[place]];
    std::optional<Value> value = column.valueOf(fields_[place]);
    if (!value) {
      refuseRow(reader, expectationMissed(column, fields_[place]));
      return false;
    }
    values_[present_[place]] = *std::move(value);
  }
  return true;
}

void Importer::writeRow(const CsvReader& reader) {
  try {
    if (!isAmongGoods()) {
      const std::string& item = std::get<std::string>(values_[*table_.indexOf("spbm")]);
      if (equalIgnoringCase(table_.name, "tmda")) {
        refuseRow(reader, Words::tr("商品资料 spda 里没有编码 %1，这样的条码卖了也查不到；请先导入 "
                                    "spda，或者在同一个命令里一起导入",
                                    item));
        return;
      }
      doubtRow(reader, Words::tr("商品资料 spda 里没有编码 %1", item));
    }
    if (write(reader)) requireFirst(reader);
  } catch (const StoreError& error) {
    throw Refusal(Words::tr("%1存不进去，什么也没有导入：%2", lineText(reader), error.what()));
  }
}

bool Importer::write(const CsvReader& reader) {
  if (equalIgnoringCase(table_.name, "stock"))
    counted_.push_back(std::get<std::string>(values_[0]));
  recordBalance();
  std::vector<Value> bound;
  bound.reserve(updated_.size() + table_.keyColumns);
  for (const std::size_t index : updated_) bound.push_back(values_[index]);
  std::ranges::move(key(), std::back_inserter(bound));
  if (writer_->update(std::move(bound))) {
    ++imported_.updated;
  } else if (!lacking_.empty()) {
    refuseRow(reader, Words::tr("是新的，但文件缺少“%1”这一列", lacking_));
    return false;
  } else {
    writer_->insert(values_);
    ++imported_.added;
  }
  return true;
}

// A card's balance moves by purchases and top-ups, as far as the books know: one that the owner
// sets stands among the top-ups too.
void Importer::recordBalance() {
  const std::optional<std::size_t> card = table_.indexOf("card");
  if (!card || !isInFile_[*card] || accounts_ == Accounts::kKeep) return;
  connection_.runBound(
      "insert into cardStored (cardbh, addmoney, inMoney, commerce, bz, complete)"
      // untranslated: stored with the top-up
      " select bh, round(?1 - card, 4), 0, ?1, '导入会员时改成的余额', 1 from member"
      " where bh = ?2 and card <> ?1",
      {values_[*card], values_[0]});
}

void Importer::requireFirst(const CsvReader& reader) {
  const std::vector<Value> names = key();
  Rows row = connection_.queryBound(table_.numberQuery, names);
  const bool isFirst = row.next()
                           ? seen_.insert(row.whole("id").value())
                           : seenOthers_.insert(asciiLower(std::get<std::string>(names[0]))).second;
  if (!isFirst) refuseRow(reader, Words::tr("与前面的一行主键相同，同一个文件里只能有一行"));
}

bool Importer::isAmongGoods() const {
  const std::optional<std::size_t> item = table_.indexOf("spbm");
  return !item ||
         connection_.queryBound("select 1 from spda where f_spbm = ?", {values_[*item]}).next();
}

std::vector<Value> Importer::key() const {
  return {values_.begin(), values_.begin() + static_cast<std::ptrdiff_t>(table_.keyColumns)};
}

void Importer::refuseRow(const CsvReader& reader, const std::string& reason) {
  if (badRowCount_++ > 0) badRows_ += '\n';
  badRows_ += Words::tr("%1：%2", lineText(reader), reason);
}

void Importer::doubtRow(const CsvReader& reader, const std::string& reason) {
  if (imported_.doubtCount++ < kMostBadRows) {
    imported_.doubts.push_back(Words::tr("%1：%2", lineText(reader), reason));
  }
}
