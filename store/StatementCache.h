#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>

class Statement;
struct sqlite3;

/// Prepared statements by their text; the ones longest unused go first.
class StatementCache {
 public:
  explicit StatementCache(sqlite3* engine) : engine_(engine) {}

  /// A statement that nobody else runs. When the cached one is running (a query inside the loop
  /// over the same query), the caller gets one of its own. Throws StoreError for a text that is
  /// none.
  std::shared_ptr<Statement> take(std::string_view text);

 private:
  // The till has a few dozen texts; the rest is room for queries put together from choices.
  static constexpr std::size_t kMostStatements = 128;

  using Recent = std::list<std::shared_ptr<Statement>>;

  sqlite3* engine_;
  Recent recent_;  ///< the latest used first
  std::unordered_map<std::string_view, Recent::iterator> byText_;
};
