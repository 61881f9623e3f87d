#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "shop/RowNumbers.h"
#include "shop/Table.h"
#include "store/RowWriter.h"
#include "store/Value.h"

class Connection;
class CsvReader;

/// What an import did.
struct Imported {
  std::int64_t added = 0;
  std::int64_t updated = 0;
  /// What is likely wrong with rows that were taken, each with its line, the first twenty.
  std::vector<std::string> doubts;
  std::int64_t doubtCount = 0;
  /// The file has account columns, and members that exist kept theirs.
  bool keptAccounts = false;
};

/// Brings comma-separated rows into a table: the first row names the columns, a row with a known
/// key updates it (columns that the file lacks stay as they are), any other is added. Rows with
/// nothing in them are passed over. All or nothing: one transaction.
///
/// Refused are, besides what its column does not hold, a second row with the same key and a barcode
/// whose item code is not among the goods: it would sell and be in no query.
class Importer {
 public:
  /// Told now and then, on long files only: rows so far and the part of the text read, 0 ... 1.
  using Progress = std::function<void(std::int64_t rows, double part)>;
  /// What becomes of the account columns (Column::isAccount) of rows that exist.
  enum class Accounts { kKeep, kReplace };

  Importer(Connection& connection, Table table, Progress progress,
           Accounts accounts = Accounts::kKeep);

  /// Throws Refusal that names each bad row by its line and says what is wrong with it (the first
  /// twenty of them); then nothing was written.
  Imported run(std::istream& text);

 private:
  void readHeader(CsvReader& reader);
  std::size_t columnNamed(const std::string& heading) const;
  void chooseUpdated();
  void prepareWriting();
  void readRow(const CsvReader& reader);
  bool readValues(const CsvReader& reader);
  void writeRow(const CsvReader& reader);
  bool write(const CsvReader& reader);
  void recordBalance();
  void noteImport();
  void requireFirst(const CsvReader& reader);
  bool isAmongGoods() const;
  std::vector<Value> key() const;
  void refuseRow(const CsvReader& reader, const std::string& reason);
  void doubtRow(const CsvReader& reader, const std::string& reason);

  Connection& connection_;
  Table table_;
  Progress progress_;
  Accounts accounts_;
  std::vector<std::size_t> present_;  ///< for each column of the file, its index in the table
  std::vector<bool> isInFile_;        ///< the same by the table's columns
  std::vector<std::size_t>
      updated_;  ///< columns that an update writes, by their index in the table
  std::optional<RowWriter> writer_;
  std::string lacking_;        ///< a column that a new row needs and the file lacks
  std::vector<Value> newRow_;  ///< what a new row has in the columns that the file lacks
  std::vector<std::string> fields_;
  std::vector<Value> values_;         ///< the row to write, in the order of the table's columns
  RowNumbers seen_;                   ///< rows that the file has had
  std::set<std::string> seenOthers_;  ///< keys of those that have no number
  std::vector<std::string> counted_;  ///< items whose stock was set
  std::int64_t lastTopUp_ = 0;        ///< before the import
  std::string badRows_;
  int badRowCount_ = 0;
  Imported imported_;
};
