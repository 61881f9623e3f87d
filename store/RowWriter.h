#pragma once

#include <string>
#include <vector>

#include "store/Value.h"

class Connection;

/// How an insert of many rows begins that, as those of RowWriter, keeps no copy of the pages of a
/// row.
inline constexpr const char* kInsertWithoutCopies = "insert or fail into ";
/// How one begins that passes over a row whose key the table has.
inline constexpr const char* kInsertUnlessThere = "insert or ignore into ";

/// Writes many rows into one table, inside a transaction that its caller takes back as a whole when
/// one of them fails: the engine then keeps no copy of every page that a row touches to take back
/// that row alone, which costs ten times the row. Each kind of statement is prepared once.
class RowWriter {
 public:
  using Names = std::vector<std::string>;

  /// A row is found by `keys`; an update writes `updated`, a new row has all `columns`.
  RowWriter(Connection& connection, const std::string& table, const Names& keys,
            const Names& updated, const Names& columns);

  /// `values` are those of `updated`, then those of `keys`. False when no row has these keys.
  /// Throws StoreError.
  [[nodiscard]] bool update(std::vector<Value> values);
  /// `values` are those of `columns`. Throws StoreError.
  void insert(std::vector<Value> values);

 private:
  Connection& connection_;
  std::string updateText_, insertText_;
};
