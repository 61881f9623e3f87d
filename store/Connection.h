#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "store/DataFilePath.h"
#include "store/DataSource.h"
#include "store/Recordset.h"
#include "store/Rows.h"
#include "store/Value.h"
#include "store/WriteMarks.h"

class Statement;
class StatementCache;
struct sqlite3;

/// Who uses a connection and what time it is: for those who note down what is written.
struct ConnectionUser {
  /// The operator's number; 0 for the owner's tool, nothing when nobody is logged in.
  std::function<std::optional<std::int64_t>()> number = [] {
    return std::optional<std::int64_t>(0);
  };
  /// Who allows what is being done, where somebody had to be asked.
  std::function<std::optional<std::int64_t>()> approver = [] {
    return std::optional<std::int64_t>();
  };
  Clock clock = localTime;
};

/// The one connection to the data file. Every failure throws StoreError.
///
/// Two kinds of statements run here. The program's own are literal text in the dialect of
/// store/Dialect.h, built only through store/Literal.h: Execute, Read, Open. The library's own are
/// engine text with "?" for bound values: run, query. Both kinds are prepared once per text;
/// literals count as values, so that a thousand barcodes are one prepared statement.
class Connection {
 public:
  enum class Mode { kExisting, kNameless };

  /// Opens the file as it is, without looking at its tables (see openDataFile). kNameless takes the
  /// file's name away as soon as it is open, and keeps all that belongs to it in memory or in the
  /// file: it goes with the connection, even when the program is killed.
  Connection(const DataSource& source, Mode mode);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  const DataSource& source() const { return source_; }
  const ConnectionUser& user() const { return user_; }
  void setUser(ConnectionUser user) { user_ = std::move(user); }
  /// Throws StoreError, with a text for people, when the file has been deleted, moved, replaced or
  /// linked since it was opened: what is written now would be lost. So do Execute, run and a
  /// transaction's beginning.
  void requireItsFile() const;
  /// The same as a text: empty when the file is its own.
  std::string fileFault() const;
  /// Whether what is written now waits for a commit.
  bool inTransaction() const { return transactionDepth_ > 0; }

  /// Runs a statement that returns no rows; gives the number of rows changed.
  std::int64_t Execute(const std::string& statement);
  /// Runs a query whose rows are read forward.
  Rows Read(const std::string& statement);
  /// Runs a query to its end.
  Recordset Open(const std::string& statement);

  /// As Execute and Read, with values bound to the "?" of an engine text.
  template <class... Values>
  std::int64_t run(const char* text, const Values&... values) {
    return runBound(text, {toValue(values)...});
  }
  template <class... Values>
  Rows query(const char* text, const Values&... values) {
    return queryBound(text, {toValue(values)...});
  }
  /// As run and query, for a statement whose columns are known at run time only.
  std::int64_t runBound(const char* text, std::vector<Value> values);
  Rows queryBound(const char* text, std::vector<Value> values);
  /// As Execute and run, for an insert of at most one row: the key that the row was given, or
  /// nothing when none was written.
  std::optional<std::int64_t> ExecuteInsert(const std::string& statement);
  template <class... Values>
  std::optional<std::int64_t> insert(const char* text, const Values&... values) {
    return keyOfNewRow(runBound(text, {toValue(values)...}));
  }

  /// The mark of what has just been written.
  WriteMark writeMark() { return marks_.next(); }
  /// Whether what was written before that mark has not been taken back since. True for kFromFile,
  /// false for kNotWritten.
  bool stands(WriteMark mark) const { return marks_.stands(mark); }

  /// Several statements of engine text at once, for making tables; nothing is bound or cached.
  void runScript(const std::string& statements);
  /// Copies what the log holds into the data file, as far as no reader is in the way, without
  /// waiting for anybody. Commits do so themselves only when the log has kMostLogPages, so whoever
  /// writes for people calls this while nobody waits.
  void checkpoint();
  /// The pages (4 KiB each) that were in the log after the last commit and were not copied since.
  int logPages() const { return logPages_; }
  static constexpr int kMostLogPages = 16'384;
  /// From now on the tables of that data file that this one has not can be read as if they were its
  /// own, as they are at each moment; nothing can be written to them. For a nameless file.
  void readBeside(const DataSource& other);
  /// From now on `asked` is called every few milliseconds while a statement runs, in its thread;
  /// when it says yes, the statement ends by a StoreError. It must not use the connection.
  void stopWhen(std::function<bool()> asked);

 private:
  friend class Snapshot;
  friend class Transaction;
  friend class FileReading;
  friend void backUpDataFile(Connection& connection, const std::filesystem::path& target);
  friend class SteppedCopy;
  std::optional<std::int64_t> keyOfNewRow(std::int64_t rowsWritten) const;

  struct EngineCloser {
    void operator()(sqlite3* engine) const;
  };

  void openEngine(Mode mode);
  static int committed(void* connection, sqlite3* engine, const char*, int logPages);
  void requireTransaction() const;
  std::shared_ptr<Statement> prepared(std::string_view text, std::vector<Value> values);
  std::int64_t runToEnd(std::string_view text, std::vector<Value> values);

  DataSource source_;
  ConnectionUser user_;
  std::optional<FileIdentity> file_;  ///< none while nameless
  std::unique_ptr<sqlite3, EngineCloser> engine_;
  std::unique_ptr<StatementCache> statements_;
  std::function<bool()> stopAsked_;
  const char* begin_ = "begin immediate";  ///< of an outermost transaction
  int transactionDepth_ = 0;
  int logPages_ = 0;
  WriteMarks marks_;
};
