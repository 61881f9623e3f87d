#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "shop/Table.h"
#include "store/RowWriter.h"

class Connection;

/// The rows of a sheet that wait to come into one of the goods tables, in runs that are each sorted
/// by key. All of it inside a transaction of the caller.
class StagedTable {
 public:
  using TableRow = std::vector<Value>;

  StagedTable(Connection& connection, Table table);

  /// Puts a row, in the order of the table's columns, into a run.
  void add(std::int64_t run, TableRow row);
  /// Moves some `rows` rows with the lowest keys into their table, where a row with the key of one
  /// is replaced, and notes stock in the journal; gives how many, none when nothing waits.
  std::int64_t move(int rows);
  /// Removes as many instead.
  std::int64_t remove(int rows);

 private:
  struct Slice {
    std::string where;
    std::vector<Value> bound;
  };
  std::optional<Slice> lowest(int rows) const;
  std::optional<std::string> keyBehind(std::int64_t run, std::int64_t rows) const;
  void updateKnown(const Slice& slice);
  void noteStock(const Slice& slice) const;
  std::string insertText(const Slice& slice) const;
  std::string waitingIn(const Slice& slice, const char* existence) const;
  std::int64_t takeOut(const Slice& slice);

  Connection& connection_;
  Table table_;
  std::string staged_, columns_, keys_;
  RowWriter toStage_, toTable_;
};
