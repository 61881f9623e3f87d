#include "access/JetReader.h"

#include <mdbtools.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string_view>

#include "access/JetValues.h"
#include "base/Failure.h"
#include "base/Words.h"

namespace {

struct TableCloser {
  void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
struct HandleCloser {
  void operator()(MdbHandle* handle) const { mdb_close(handle); }
};
using TablePointer = std::unique_ptr<MdbTableDef, TableCloser>;

[[noreturn]] void refuse(const std::string& what) {
  throw Failure(Words::tr(
      "Access 文件%1，文件不完整或者已损坏。请先用 Access 打开它，压缩和修复，去掉密码后另存一份。",
      what));
}

struct Type {
  const char* name;
  int code;
  bool isReadable;
};
constexpr Type kTypes[] = {
    {Words::mark("是/否"), MDB_BOOL, true},         {Words::mark("字节"), MDB_BYTE, true},
    {Words::mark("整型"), MDB_INT, true},           {Words::mark("长整型"), MDB_LONGINT, true},
    {Words::mark("货币"), MDB_MONEY, true},         {Words::mark("单精度"), MDB_FLOAT, true},
    {Words::mark("双精度"), MDB_DOUBLE, true},      {Words::mark("日期/时间"), MDB_DATETIME, true},
    {Words::mark("文本"), MDB_TEXT, true},          {Words::mark("备注"), MDB_MEMO, true},
    {Words::mark("小数"), MDB_NUMERIC, true},       {Words::mark("OLE 对象"), MDB_OLE, false},
    {Words::mark("同步复制 ID"), MDB_REPID, false}, {Words::mark("二进制"), MDB_BINARY, false},
};

Type typeOf(const MdbColumn& column) {
  for (const Type& type : kTypes) {
    if (type.code == column.col_type) return type;
  }
  return {Words::mark("别的类型"), column.col_type, false};
}

template <class T>
T fixedValue(std::string_view bytes) {
  if (bytes.size() < sizeof(T)) refuse(Words::tr("里有一个数字短了"));
  T value;
  std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

/// One table while its rows are gone through.
class Reading {
 public:
  Reading(MdbHandle* handle, MdbCatalogEntry* entry);

  std::vector<AccessColumn> columns() const;
  bool next() { return mdb_fetch_row(table_.get()) != 0; }
  AccessRow row();
  /// Throws when there should have been more.
  void requireAll(std::int64_t rows) const;

 private:
  AccessValue valueOf(const MdbColumn& column, const MdbField& field);
  AccessValue numberOf(int type, std::string_view bytes) const;
  std::string decimalOf(const MdbColumn& column, int start, std::string_view bytes);
  std::string textOf(std::string_view bytes);
  std::string memoOf(std::string_view bytes);
  const MdbColumn& column(std::size_t index) const {
    return *static_cast<const MdbColumn*>(g_ptr_array_index(table_->columns, index));
  }
  std::string name() const { return Words::tr("的表 %1 ", table_->name); }

  MdbHandle* handle_;
  TablePointer table_;
  std::vector<MdbField> fields_;
};

Reading::Reading(MdbHandle* handle, MdbCatalogEntry* entry)
    : handle_(handle), table_(mdb_read_table(entry)) {
  if (!table_ || mdb_read_columns(table_.get()) == nullptr ||
      table_->columns->len < table_->num_cols) {
    refuse(Words::tr("的表 %1 读不出来", entry->object_name));
  }
  fields_.resize(table_->num_cols);
  mdb_rewind_table(table_.get());
}

std::vector<AccessColumn> Reading::columns() const {
  std::vector<AccessColumn> columns;
  for (std::size_t index = 0; index < table_->num_cols; ++index) {
    const Type type = typeOf(column(index));
    columns.push_back({column(index).name, Words::tr(type.name), type.isReadable});
  }
  return columns;
}

// The library's own values do not tell an empty text from none, so the row is taken apart here.
AccessRow Reading::row() {
  int start = 0;
  std::size_t length = 0;
  constexpr int kPlaceBits = 0x1FFF;
  if (mdb_find_row(handle_, static_cast<int>(table_->cur_row) - 1, &start, &length) != 0 ||
      mdb_crack_row(table_.get(), start & kPlaceBits, length, fields_.data()) < 0) {
    refuse(Words::tr("%1有一行读不出来", name()));
  }
  AccessRow values;
  for (const MdbField& field : fields_) {
    values.push_back(valueOf(column(static_cast<std::size_t>(field.colnum)), field));
  }
  return values;
}

void Reading::requireAll(std::int64_t rows) const {
  if (rows >= static_cast<std::int64_t>(table_->num_rows)) return;
  refuse(Words::tr("%1应有 %2 行，只读出 %3 行", name(), table_->num_rows, rows));
}

AccessValue Reading::valueOf(const MdbColumn& column, const MdbField& field) {
  if (column.col_type == MDB_BOOL) return field.is_null == 0;
  if (field.is_null != 0 || !typeOf(column).isReadable) return std::monostate{};
  const auto page = static_cast<int>(handle_->fmt->pg_size);
  if (field.start < 0 || field.siz < 0 || field.start > page || field.siz > page - field.start) {
    refuse(Words::tr("%1有一行不完整", name()));
  }
  const std::string_view bytes(reinterpret_cast<const char*>(handle_->pg_buf) + field.start,
                               static_cast<std::size_t>(field.siz));
  if (column.col_type == MDB_TEXT) return textOf(bytes);
  if (column.col_type == MDB_MEMO) return memoOf(bytes);
  if (column.col_type == MDB_NUMERIC) return decimalOf(column, field.start, bytes);
  return numberOf(column.col_type, bytes);
}

AccessValue Reading::numberOf(int type, std::string_view bytes) const {
  switch (type) {
    case MDB_BYTE:
      return std::int64_t{fixedValue<std::uint8_t>(bytes)};
    case MDB_INT:
      return std::int64_t{fixedValue<std::int16_t>(bytes)};
    case MDB_LONGINT:
      return std::int64_t{fixedValue<std::int32_t>(bytes)};
    case MDB_MONEY:  // ten-thousandths
      return Currency::fromScaled(fixedValue<std::int64_t>(bytes));
    case MDB_FLOAT:
      return asShown(fixedValue<float>(bytes));
    case MDB_DOUBLE:
      return fixedValue<double>(bytes);
    default:
      return jetDate(fixedValue<double>(bytes));
  }
}

std::string Reading::decimalOf(const MdbColumn& column, int start, std::string_view bytes) {
  constexpr std::size_t kDecimalBytes = 17;
  if (bytes.size() < kDecimalBytes) refuse(Words::tr("里有一个数字短了"));
  char* digits = mdb_numeric_to_string(handle_, start, column.col_scale, column.col_prec);
  std::string text(digits);
  g_free(digits);
  return text;
}

std::string Reading::textOf(std::string_view bytes) {
  if (!IS_JET3(handle_)) return jet4Text(bytes);
  std::string text(bytes.size() * 4 + 1, '\0');
  const int length =
      mdb_unicode2ascii(handle_, bytes.data(), bytes.size(), text.data(), text.size() - 1);
  text.resize(static_cast<std::size_t>(std::max(length, 0)));
  return text;
}

// "Memo Field Definition" of HACKING.md: the length with flags, then either the text itself or the
// page and row where it begins. In pieces, each has the place of the next one before it.
std::string Reading::memoOf(std::string_view bytes) {
  constexpr std::uint32_t kInline = 0x80000000, kInOnePiece = 0x40000000, kLength = 0x3FFFFFFF;
  const auto flags = fixedValue<std::uint32_t>(bytes);
  if (bytes.size() < MDB_MEMO_OVERHEAD) refuse(Words::tr("%1有一处备注不完整", name()));
  if ((flags & kInline) != 0) return textOf(bytes.substr(MDB_MEMO_OVERHEAD));
  const std::size_t length = flags & kLength;
  auto place = fixedValue<std::int32_t>(bytes.substr(4));
  std::string whole;
  while (whole.size() < length) {
    void* page = nullptr;
    int start = 0;
    std::size_t size = 0;
    const std::size_t head = (flags & kInOnePiece) != 0 ? 0 : sizeof place;
    if (place == 0 || mdb_find_pg_row(handle_, place, &page, &start, &size) != 0 || size <= head) {
      refuse(Words::tr("%1有一处备注不完整", name()));
    }
    const std::string_view piece(static_cast<const char*>(page) + start, size);
    place = head == 0 ? 0 : fixedValue<std::int32_t>(piece);
    whole += piece.substr(head);
  }
  return textOf(std::string_view(whole).substr(0, length));
}

}  // namespace

class JetReader::Handle {
 public:
  explicit Handle(const std::string& path) : handle_(mdb_open(path.c_str(), MDB_NOFLAGS)) {
    if (!handle_) {
      throw Failure(Words::tr("这不是 Access 的数据文件，或者没有读它的权限：%1", path));
    }
    // The library fills up a page that is cut off with zeros.
    if (std::filesystem::file_size(path) % static_cast<std::size_t>(handle_->fmt->pg_size) != 0) {
      refuse(Words::tr("的最后一页不完整"));
    }
    requireWholeCatalog();
    if (mdb_read_catalog(handle_.get(), MDB_ANY) == nullptr) refuse(Words::tr("的目录读不出来"));
  }
  MdbHandle* get() const { return handle_.get(); }
  std::vector<MdbCatalogEntry*> entries() const {
    std::vector<MdbCatalogEntry*> entries;
    for (std::size_t index = 0; index < handle_->num_catalog; ++index) {
      auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(handle_->catalog, index));
      if (mdb_is_user_table(entry) != 0 || entry->object_type == MDB_LINKED_TABLE) {
        entries.push_back(entry);
      }
    }
    return entries;
  }

 private:
  // The library takes the catalog's pages for all of them as far as it finds any.
  void requireWholeCatalog() {
    MdbCatalogEntry catalog{};
    std::strcpy(catalog.object_name, "MSysObjects");
    catalog.mdb = handle_.get();
    catalog.object_type = MDB_TABLE;
    catalog.table_pg = 2;
    Reading reading(handle_.get(), &catalog);
    std::int64_t rows = 0;
    while (reading.next()) ++rows;
    reading.requireAll(rows);
  }

  std::unique_ptr<MdbHandle, HandleCloser> handle_;
};

JetReader::JetReader(const std::string& path) : handle_(std::make_unique<Handle>(path)) {}
JetReader::~JetReader() = default;

std::vector<AccessTable> JetReader::tables(const std::function<void()>& alive) {
  constexpr std::int64_t kRowsPerSign = 4096;
  std::vector<AccessTable> tables;
  for (MdbCatalogEntry* entry : handle_->entries()) {
    AccessTable& table = tables.emplace_back();
    table.name = entry->object_name;
    table.isLinked = entry->object_type == MDB_LINKED_TABLE;
    if (table.isLinked) continue;
    Reading reading(handle_->get(), entry);
    table.columns = reading.columns();
    while (reading.next()) {
      if (++table.rows % kRowsPerSign == 0) alive();
    }
    reading.requireAll(table.rows);
  }
  return tables;
}

void JetReader::rows(const std::string& table, const std::function<void(const AccessRow&)>& take) {
  for (MdbCatalogEntry* entry : handle_->entries()) {
    if (entry->object_name != table || entry->object_type == MDB_LINKED_TABLE) continue;
    Reading reading(handle_->get(), entry);
    std::int64_t rows = 0;
    for (; reading.next(); ++rows) take(reading.row());
    return reading.requireAll(rows);
  }
  refuse(Words::tr("里没有表 %1", table));
}
