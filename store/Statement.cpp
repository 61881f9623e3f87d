#include "store/Statement.h"

#include <utility>

#include "base/Text.h"
#include "base/Words.h"
#include "store/StoreError.h"

namespace {

int bindOne(sqlite3_stmt* statement, int place, const Value& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) {
    return sqlite3_bind_int64(statement, place, *number);
  }
  if (const auto* number = std::get_if<double>(&value)) {
    return sqlite3_bind_double(statement, place, *number);
  }
  if (const auto* text = std::get_if<std::string>(&value)) {
    return sqlite3_bind_text64(statement, place, text->data(), text->size(), SQLITE_STATIC,
                               SQLITE_UTF8);
  }
  return sqlite3_bind_null(statement, place);
}

}  // namespace

Statement::Statement(sqlite3* engine, std::string_view text) : engine_(engine), text_(text) {
  const char* rest = nullptr;
  check(engine_, sqlite3_prepare_v2(engine_, text_.c_str(), static_cast<int>(text_.size() + 1),
                                    &prepared_, &rest));
  const bool single = prepared_ != nullptr && rest == text_.c_str() + text_.size();
  if (single) return;
  sqlite3_finalize(prepared_);
  throw StoreError(Words::tr("数据语句有误：不是一条语句：%1", text_));
}

Statement::~Statement() {
  sqlite3_finalize(prepared_);
}

void Statement::bind(std::vector<Value> values) {
  ensure(state_ == State::kReady, "a statement is bound before it runs");
  ensure(sqlite3_bind_parameter_count(prepared_) == static_cast<int>(values.size()),
         "one value for each ? of a statement");
  values_ = std::move(values);
  int place = 0;
  for (const Value& value : values_) check(engine_, bindOne(prepared_, ++place, value));
}

bool Statement::step() {
  if (state_ == State::kAtEnd) return false;  // the engine would begin again
  const int code = sqlite3_step(prepared_);
  if (code == SQLITE_ROW) {
    state_ = State::kOnRow;
    nextIndex_ = 0;
    return true;
  }
  if (code == SQLITE_DONE) {
    state_ = State::kAtEnd;
    return false;
  }
  const std::string text = failureText(code, sqlite3_errmsg(engine_));
  reset();
  throw StoreError(text);
}

void Statement::reset() noexcept {
  sqlite3_reset(prepared_);
  if (!values_.empty()) {
    sqlite3_clear_bindings(prepared_);
    values_.clear();
  }
  state_ = State::kReady;
  nextIndex_ = 0;
}

int Statement::columnCount() const {
  return sqlite3_column_count(prepared_);
}

std::string_view Statement::columnName(int index) const {
  return sqlite3_column_name(prepared_, index);
}

// Another schema may give the statement other columns when it runs the next time.
const std::shared_ptr<const std::vector<std::string>>& Statement::columnNames() {
  const auto count = static_cast<std::size_t>(columnCount());
  if (!columnNames_ || columnNames_->size() != count) {
    std::vector<std::string> names;
    names.reserve(count);
    for (int index = 0; index < columnCount(); ++index) names.emplace_back(columnName(index));
    columnNames_ = std::make_shared<const std::vector<std::string>>(std::move(names));
  }
  return columnNames_;
}

Value Statement::column(int index) const {
  ensure(state_ == State::kOnRow, "a row is read while the query stands on one");
  switch (sqlite3_column_type(prepared_, index)) {
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_column_int64(prepared_, index)};
    case SQLITE_FLOAT:
      return sqlite3_column_double(prepared_, index);
    case SQLITE_NULL:
      return std::monostate{};
    default: {
      const void* bytes = sqlite3_column_blob(prepared_, index);
      const int size = sqlite3_column_bytes(prepared_, index);
      return std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size));
    }
  }
}

Value Statement::column(std::string_view name) const {
  return column(indexOf(name));
}

// Columns are mostly asked for in the order of the select, the last ones often of few rows only, so
// the search starts behind the last one, and in each row at the first.
int Statement::indexOf(std::string_view name) const {
  const int count = columnCount();
  for (int tried = 0; tried < count; ++tried) {
    const int index = (nextIndex_ + tried) % count;
    if (!equalIgnoringCase(columnName(index), name)) continue;
    nextIndex_ = index + 1;
    return index;
  }
  throw StoreError(Words::tr("查询结果里没有“%1”这一列。", name));
}
