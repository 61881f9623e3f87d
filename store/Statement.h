#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/Engine.h"
#include "store/Value.h"

/// One prepared statement. Used again and again: bind, step to the end, reset. Failures throw
/// StoreError and leave it reset.
class Statement {
 public:
  /// `text` is exactly one statement.
  Statement(sqlite3* engine, std::string_view text);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  const std::string& text() const { return text_; }

  /// One value for each "?". The values are kept, not copied, until the reset.
  void bind(std::vector<Value> values);
  /// To the next row; false at the end, and from then on.
  bool step();
  /// Ends the query and forgets the values.
  void reset() noexcept;

  int columnCount() const;
  std::string_view columnName(int index) const;
  /// Of all columns; made once for a statement that is used again and again.
  const std::shared_ptr<const std::vector<std::string>>& columnNames();
  Value column(int index) const;
  /// The column of that name in the present row. Throws StoreError when there is none.
  Value column(std::string_view name) const;

 private:
  enum class State { kReady, kOnRow, kAtEnd };

  int indexOf(std::string_view name) const;

  sqlite3* engine_;
  std::string text_;
  sqlite3_stmt* prepared_ = nullptr;
  std::vector<Value> values_;
  State state_ = State::kReady;
  std::shared_ptr<const std::vector<std::string>> columnNames_;
  mutable int nextIndex_ = 0;  ///< where the next column asked for is likely to be
};
