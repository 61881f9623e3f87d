#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "store/Value.h"
#include "tools/Table.h"

class Connection;
class CsvReader;

/// What an import did.
struct Imported {
  std::int64_t added = 0;
  std::int64_t updated = 0;
};

/// Brings comma-separated rows into a table: the first row names the columns, a row with a known
/// key updates it (columns that the file lacks stay as they are), any other is added. A later row
/// with the same key counts as an update of the earlier one. All or nothing: one transaction.
class Importer {
 public:
  /// Told now and then, on long files only: rows so far and the part of the text read, 0 ... 1.
  using Progress = std::function<void(std::int64_t rows, double part)>;

  Importer(Connection& connection, Table table, Progress progress);

  /// Throws Refusal that names each bad row by its line and says what is wrong with it (the first
  /// twenty of them); then nothing was written.
  Imported run(std::istream& text);

 private:
  void readHeader(CsvReader& reader);
  void prepareStatements();
  void readRow(const CsvReader& reader);
  void writeRow(const CsvReader& reader);
  void refuseRow(const CsvReader& reader, const std::string& reason);

  Connection& connection_;
  Table table_;
  Progress progress_;
  std::vector<std::size_t> present_;  ///< for each column of the file, its index in the table
  std::vector<std::size_t>
      updated_;  ///< columns that an update writes, by their index in the table
  std::string updateText_, insertText_;
  std::string lacking_;        ///< a column that a new row needs and the file lacks
  std::vector<Value> newRow_;  ///< what a new row has in the columns that the file lacks
  std::vector<std::string> fields_;
  std::vector<Value> values_;  ///< the row to write, in the order of the table's columns
  std::string badRows_;
  int badRowCount_ = 0;
  Imported imported_;
};
