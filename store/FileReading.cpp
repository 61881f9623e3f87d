#include "store/FileReading.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "base/WholeFile.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "store/Engine.h"
#include "store/StoreError.h"

namespace {

void execute(sqlite3* engine, const char* statement) {
  check(engine, sqlite3_exec(engine, statement, nullptr, nullptr, nullptr));
}

sqlite3_int64 sizeOf(sqlite3* engine, sqlite3_file* file) {
  sqlite3_int64 size = 0;
  check(engine, file->pMethods->xFileSize(file, &size));
  return size;
}

bool logIsEmpty(sqlite3* engine) {
  sqlite3_file* log = nullptr;
  check(engine, sqlite3_file_control(engine, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log));
  return log == nullptr || log->pMethods == nullptr || sizeOf(engine, log) == 0;
}

}  // namespace

// Between the two steps another program may have written; then once more. Not a Transaction: that
// begins on no file that has been moved, and a copy is wanted then most of all.
FileReading::FileReading(Connection& connection) : connection_(connection) {
  constexpr int kAttempts = 3;
  sqlite3* engine = connection.engine_.get();
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    check(engine,
          sqlite3_wal_checkpoint_v2(engine, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr));
    execute(engine, "begin immediate");
    if (logIsEmpty(engine)) return;
    execute(engine, "rollback");
  }
  throw StoreError(Words::tr("另一个程序一直在写数据文件，没有备份。"));
}

FileReading::~FileReading() {
  sqlite3_exec(connection_.engine_.get(), "rollback", nullptr, nullptr, nullptr);
}

void FileReading::appendTo(WholeFile& copy) const {
  sqlite3* engine = connection_.engine_.get();
  sqlite3_file* file = nullptr;
  check(engine, sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file));
  const sqlite3_int64 size = sizeOf(engine, file);
  std::array<char, 65'536> block;
  for (sqlite3_int64 done = 0; done < size;) {
    const auto count = std::min<sqlite3_int64>(size - done, std::ssize(block));
    check(engine, file->pMethods->xRead(file, block.data(), static_cast<int>(count), done));
    copy.append(std::string_view(block.data(), static_cast<std::size_t>(count)));
    done += count;
  }
}
