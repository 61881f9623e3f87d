#include "bench/BareEngine.h"

#include <benchmark/benchmark.h>
#include <sqlcipher/sqlite3.h>

#include <stdexcept>

#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

std::string text(sqlite3_stmt* row, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
  return text == nullptr ? std::string() : std::string(text);
}

void check(sqlite3* engine, bool good) {
  if (!good) throw std::runtime_error(sqlite3_errmsg(engine));
}

void readColumn(sqlite3_stmt* row, int column) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
      return benchmark::DoNotOptimize(sqlite3_column_int64(row, column));
    case SQLITE_FLOAT:
      return benchmark::DoNotOptimize(sqlite3_column_double(row, column));
    default:
      return benchmark::DoNotOptimize(sqlite3_column_text(row, column));
  }
}

}  // namespace

BareEngine::BareEngine(const std::filesystem::path& dataFile) {
  const std::string password = kBuiltInPassword;
  check(engine_,
        sqlite3_open_v2(dataFile.c_str(), &engine_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr) == SQLITE_OK);
  check(engine_,
        sqlite3_key(engine_, password.data(), static_cast<int>(password.size())) == SQLITE_OK &&
            sqlite3_exec(engine_,
                         ("pragma cipher_page_size = 4096; pragma journal_mode = wal;"
                          "pragma synchronous = full; pragma cache_size = -8192;"
                          "pragma wal_autocheckpoint = " +
                          std::to_string(Connection::kMostLogPages))
                             .c_str(),
                         nullptr, nullptr, nullptr) == SQLITE_OK);
}

BareEngine::~BareEngine() {
  sqlite3_close(engine_);
}

long long BareEngine::lastRowId() const {
  return sqlite3_last_insert_rowid(engine_);
}

BareEngine::Statement::Statement(BareEngine& engine, const char* text) : engine_(engine.engine_) {
  check(engine_, sqlite3_prepare_v2(engine_, text, -1, &prepared_, nullptr) == SQLITE_OK);
}

BareEngine::Statement::~Statement() {
  sqlite3_finalize(prepared_);
}

BareEngine::Statement& BareEngine::Statement::bind(int place, std::string_view text) {
  check(engine_, sqlite3_bind_text(prepared_, place, text.data(), static_cast<int>(text.size()),
                                   SQLITE_STATIC) == SQLITE_OK);
  return *this;
}

BareEngine::Statement& BareEngine::Statement::bind(int place, long long number) {
  check(engine_, sqlite3_bind_int64(prepared_, place, number) == SQLITE_OK);
  return *this;
}

void BareEngine::Statement::run() {
  check(engine_, sqlite3_step(prepared_) == SQLITE_DONE);
  sqlite3_reset(prepared_);
}

long BareEngine::Statement::readAll() {
  const int columns = sqlite3_column_count(prepared_);
  long rows = 0;
  int code = 0;
  for (; (code = sqlite3_step(prepared_)) == SQLITE_ROW; ++rows) {
    for (int column = 0; column < columns; ++column) readColumn(prepared_, column);
  }
  check(engine_, code == SQLITE_DONE);
  sqlite3_reset(prepared_);
  return rows;
}

Texts BareEngine::Statement::read(std::size_t most) {
  const int columns = sqlite3_column_count(prepared_);
  Texts rows;
  int code = SQLITE_ROW;
  while (rows.size() < most && (code = sqlite3_step(prepared_)) == SQLITE_ROW) {
    std::vector<std::string>& row = rows.emplace_back();
    row.reserve(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column) row.push_back(text(prepared_, column));
  }
  check(engine_, code == SQLITE_ROW || code == SQLITE_DONE);
  sqlite3_reset(prepared_);
  return rows;
}
