#include "store/Connection.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/Words.h"
#include "store/Dialect.h"
#include "store/Engine.h"
#include "store/FragmentPieces.h"
#include "store/LockWait.h"
#include "store/Statement.h"
#include "store/StatementCache.h"
#include "store/StoreError.h"

namespace {

// Read through the engine's handle: closing one of our own would give up the locks of every other
// connection that this program has to the file.
bool beginsAsPlainFile(sqlite3* engine) {
  static constexpr char kPlainBeginning[] = "SQLite format 3";
  char beginning[sizeof kPlainBeginning] = {};
  sqlite3_file* file = nullptr;
  check(engine, sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file));
  const int code = file->pMethods->xRead(file, beginning, sizeof beginning, 0);
  return code == SQLITE_OK && std::memcmp(beginning, kPlainBeginning, sizeof beginning) == 0;
}

/// A path as it stands in the engine's names of files with options: signs that mean something there
/// by their numbers.
std::string uriPath(const std::string& path) {
  std::string uri;
  for (const char sign : path) {
    if (sign == '%') {
      uri += "%25";
    } else if (sign == '?') {
      uri += "%3f";
    } else if (sign == '#') {
      uri += "%23";
    } else {
      uri += sign;
    }
  }
  return uri;
}

void execute(sqlite3* engine, const char* statements) {
  check(engine, sqlite3_exec(engine, statements, nullptr, nullptr, nullptr));
}

// The key comes before everything else, the page size of the cipher right after it. The first read
// of the tables' list tells whether the key fits; that is also when the engine derives it, once.
void unlock(sqlite3* engine, const DataSource& source) {
  if (source.password.empty()) {
    execute(engine, "pragma page_size = 4096");
  } else {
    check(engine,
          sqlite3_key(engine, source.password.data(), static_cast<int>(source.password.size())));
    execute(engine, "pragma cipher_page_size = 4096");
  }
  execute(engine, "select count(*) from sqlite_master");
}

// What the cashier was shown as done survives a power cut: every commit is synced. The page cache
// (in KiB) holds the upper levels of a large shop's indexes: among a million goods a random barcode
// costs 15 µs with 8 MiB, as with 32, and 12 µs with 64, which is not worth half of the memory that
// the whole till may take.
void configure(sqlite3* engine) {
  execute(engine, "pragma synchronous = full; pragma cache_size = -8192");
}

void requireWritable(sqlite3* engine) {
  if (sqlite3_db_readonly(engine, "main") == 1) {
    throw StoreError(failureText(SQLITE_READONLY, ""));
  }
}

}  // namespace

void Connection::EngineCloser::operator()(sqlite3* engine) const {
  sqlite3_close_v2(engine);
}

Connection::Connection(const DataSource& source, Mode mode) : source_(source) {
  source_.path = existingDataFile(source.path);
  if (mode == Mode::kExisting) file_ = FileIdentity::of(source_.path);
  try {
    openEngine(mode);
  } catch (const StoreError& error) {
    engine_.reset();
    throw StoreError(Words::tr("数据文件 %1 打不开：%2", source_.path.string(), error.what()));
  }
  statements_ = std::make_unique<StatementCache>(engine_.get());
}

// One thread uses the connection, so the engine need not lock its own calls.
void Connection::openEngine(Mode mode) {
  sqlite3* opened = nullptr;
  const int code =
      sqlite3_open_v2(source_.path.c_str(), &opened,
                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI, nullptr);
  engine_.reset(opened);
  check(opened, code);
  if (mode == Mode::kNameless) unlink(source_.path.c_str());
  if (!source_.password.empty() && beginsAsPlainFile(opened)) {
    throw StoreError(Words::tr("这个数据文件没有密码，请在设置中去掉密码部分。"));
  }
  sqlite3_extended_result_codes(opened, 1);
  waitForLocks(opened);
  addFragmentPieces(opened);
  unlock(opened, source_);
  requireWritable(opened);
  configure(opened);
  sqlite3_wal_hook(opened, &Connection::committed, this);
  if (mode == Mode::kNameless) execute(opened, "pragma journal_mode = memory");
}

Connection::~Connection() = default;

void Connection::requireItsFile() const {
  if (file_) requireSameDataFile(source_.path, *file_);
}

std::string Connection::fileFault() const {
  try {
    requireItsFile();
    return {};
  } catch (const StoreError& error) {
    return error.what();
  }
}

std::int64_t Connection::Execute(const std::string& statement) {
  EngineStatement engineForm = translate(statement);
  return runToEnd(engineForm.text, std::move(engineForm.values));
}

Rows Connection::Read(const std::string& statement) {
  EngineStatement engineForm = translate(statement);
  return Rows(prepared(engineForm.text, std::move(engineForm.values)));
}

Recordset Connection::Open(const std::string& statement) {
  EngineStatement engineForm = translate(statement);
  const std::shared_ptr<Statement> running =
      prepared(engineForm.text, std::move(engineForm.values));
  const Rows ended(running);
  std::vector<std::vector<Value>> rows;
  while (running->step()) {
    std::vector<Value>& values = rows.emplace_back();
    values.reserve(static_cast<std::size_t>(running->columnCount()));
    for (int index = 0; index < running->columnCount(); ++index) {
      values.push_back(running->column(index));
    }
  }
  return Recordset(running->columnNames(), std::move(rows));
}

std::int64_t Connection::runBound(const char* text, std::vector<Value> values) {
  return runToEnd(text, std::move(values));
}

Rows Connection::queryBound(const char* text, std::vector<Value> values) {
  return Rows(prepared(text, std::move(values)));
}

std::optional<std::int64_t> Connection::ExecuteInsert(const std::string& statement) {
  return keyOfNewRow(Execute(statement));
}

std::optional<std::int64_t> Connection::keyOfNewRow(std::int64_t rowsWritten) const {
  ensure(rowsWritten <= 1, "one row at a time is given its key");
  if (rowsWritten == 0) return std::nullopt;
  return sqlite3_last_insert_rowid(engine_.get());
}

void Connection::runScript(const std::string& statements) {
  requireTransaction();
  execute(engine_.get(), statements.c_str());
}

void Connection::checkpoint() {
  int pages = 0, copied = 0;
  const int code =
      sqlite3_wal_checkpoint_v2(engine_.get(), nullptr, SQLITE_CHECKPOINT_PASSIVE, &pages, &copied);
  if ((code & 0xff) == SQLITE_BUSY || (code & 0xff) == SQLITE_LOCKED) return;  // the next one will
  check(engine_.get(), code);
  logPages_ = pages - copied;
}

// Stands in for the engine's own rule, which copies within the commit that makes the log long: a
// cashier would wait for it. What fails here loses nothing, and the next one will say why.
int Connection::committed(void* connection, sqlite3* engine, const char*, int logPages) {
  int copied = 0;
  if (logPages >= kMostLogPages) {
    sqlite3_wal_checkpoint_v2(engine, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, &copied);
  }
  static_cast<Connection*>(connection)->logPages_ = logPages - std::max(copied, 0);
  return SQLITE_OK;
}

// The engine reads the other file at once, so that its page size can only be the usual one. Of a
// transaction that begins with the write lock it would want that of both files.
void Connection::readBeside(const DataSource& other) {
  ensure(!file_, "another file is read beside a nameless one");
  execute(engine_.get(), "pragma cipher_default_page_size = 4096");
  const std::string place = "file:" + uriPath(other.path.string()) + "?mode=ro";
  run("attach ? as shop key ?", place, other.password);
  begin_ = "begin";
}

void Connection::stopWhen(std::function<bool()> asked) {
  constexpr int kEngineSteps = 10000;
  stopAsked_ = std::move(asked);
  const auto ask = [](void* stopAsked) {
    return (*static_cast<std::function<bool()>*>(stopAsked))() ? 1 : 0;
  };
  sqlite3_progress_handler(engine_.get(), kEngineSteps, ask, &stopAsked_);
}

// On a full or failing disk the engine may take the whole transaction back by itself. What follows
// inside it must not slip through as single commits.
void Connection::requireTransaction() const {
  if (transactionDepth_ > 0 && sqlite3_get_autocommit(engine_.get())) {
    throw StoreError(Words::tr("前面的写入失败，这一步的数据已全部撤销，没有保存。"));
  }
}

std::shared_ptr<Statement> Connection::prepared(std::string_view text, std::vector<Value> values) {
  requireTransaction();
  std::shared_ptr<Statement> statement = statements_->take(text);
  statement->bind(std::move(values));
  return statement;
}

std::int64_t Connection::runToEnd(std::string_view text, std::vector<Value> values) {
  if (transactionDepth_ == 0) requireItsFile();
  const int changesBefore = sqlite3_total_changes(engine_.get());
  const std::shared_ptr<Statement> running = prepared(text, std::move(values));
  const Rows ended(running);
  while (running->step()) {
  }
  // The engine's count is that of the last insert, update or delete, which another kind of
  // statement leaves as it was.
  return sqlite3_total_changes(engine_.get()) == changesBefore ? 0 : sqlite3_changes(engine_.get());
}
