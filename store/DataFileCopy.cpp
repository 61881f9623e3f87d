#include "store/DataFileCopy.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "store/Connection.h"
#include "store/DataFilePath.h"
#include "store/Engine.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

using Block = std::array<char, 64 * 1024>;

/// A file that takes its name only when it is complete.
class NewFile {
 public:
  explicit NewFile(const std::filesystem::path& target)
      : target_(target), path_(target.string() + ".part") {
    unlink(path_.c_str());  // one that a power cut left behind
    file_ = open(path_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (file_ < 0) fail();
  }
  ~NewFile() {
    if (file_ >= 0) close(file_);
    if (!isNamed_) unlink(path_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void append(const char* bytes, std::size_t count) {
    while (count > 0) {
      const ssize_t written = write(file_, bytes, count);
      if (written < 0 && errno != EINTR) fail();
      if (written <= 0) continue;
      bytes += written;
      count -= static_cast<std::size_t>(written);
    }
  }

  const std::string& path() const { return path_; }  ///< until it takes its name

  /// Everything is on the disk.
  void finish() {
    if (fsync(file_) != 0) fail();
    close(file_);
    file_ = -1;
  }

  /// After finish.
  void takeItsName() {
    if (rename(path_.c_str(), target_.c_str()) != 0) fail();
    isNamed_ = true;
    const std::filesystem::path parent = std::filesystem::absolute(target_).parent_path();
    const int folder = open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    fsync(folder);
    close(folder);
  }

 private:
  [[noreturn]] void fail() const {
    throw StoreError("不能写备份文件 " + target_.string() + "：" + fileFault(errno));
  }

  std::filesystem::path target_;
  std::string path_;
  int file_ = -1;
  bool isNamed_ = false;
};

// Reads every page, so that each is deciphered and the tables' structure walked. The engine names
// the answer like that of its longer check.
void verifyByOpening(const DataSource& original, const NewFile& copy) {
  constexpr const char* kWrong = "备份文件写出来不对，没有采用：";
  try {
    Connection opened({copy.path(), original.password}, Connection::Mode::kExisting);
    Rows rows = opened.query("pragma quick_check(1)");
    if (!rows.next() || rows.text("integrity_check") != "ok")
      throw StoreError(rows.text("integrity_check"));
  } catch (const StoreError& error) {
    throw StoreError(kWrong + std::string(error.what()));
  }
}

void verifyByComparing(const std::filesystem::path& original, const NewFile& copy) {
  std::ifstream left(original, std::ios::binary), right(copy.path(), std::ios::binary);
  using Bytes = std::istreambuf_iterator<char>;
  if (!std::equal(Bytes(left), Bytes(), Bytes(right), Bytes()))
    throw StoreError("备份的时候数据文件变了，没有采用这个备份：" + original.string());
}

bool logIsEmpty(const std::filesystem::path& dataFile) {
  std::error_code missing;
  const auto size = std::filesystem::file_size(dataFile.string() + "-wal", missing);
  return missing || size == 0;
}

// The engine's own handle reads the bytes. Opening the file a second time would, on closing, give
// up the engine's locks on it (POSIX locks belong to the process, not to the handle).
void copyThroughEngine(sqlite3* engine, NewFile& copy) {
  sqlite3_file* file = nullptr;
  check(engine, sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file));
  sqlite3_int64 size = 0;
  check(engine, file->pMethods->xFileSize(file, &size));
  Block block;
  for (sqlite3_int64 done = 0; done < size;) {
    const auto count = std::min<sqlite3_int64>(size - done, std::ssize(block));
    check(engine, file->pMethods->xRead(file, block.data(), static_cast<int>(count), done));
    copy.append(block.data(), static_cast<std::size_t>(count));
    done += count;
  }
}

}  // namespace

// The log is emptied into the file, and the transaction keeps everybody from writing to either
// while the bytes are read. Between the two another program may have written; then once more.
void copyDataFile(Connection& connection, const std::filesystem::path& target) {
  constexpr int kAttempts = 3;
  sqlite3* engine = connection.engine_.get();
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    check(engine,
          sqlite3_wal_checkpoint_v2(engine, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr));
    const Transaction nobodyWrites(connection);
    if (!logIsEmpty(connection.source().path)) continue;
    NewFile copy(target);
    copyThroughEngine(engine, copy);
    copy.finish();
    verifyByOpening(connection.source(), copy);
    copy.takeItsName();
    return;
  }
  throw StoreError("另一个程序一直在写数据文件，没有备份。");
}

// All pages in one step, which is one reading transaction: the write-ahead log lets others write
// meanwhile. In several steps each write of another program would start the copy again.
void backUpDataFile(Connection& connection, const std::filesystem::path& target) {
  NewFile copy(target);
  {
    Connection written({copy.path(), connection.source().password}, Connection::Mode::kExisting);
    sqlite3* to = written.engine_.get();
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", connection.engine_.get(), "main");
    if (backup == nullptr) check(to, sqlite3_errcode(to));
    sqlite3_backup_step(backup, -1);
    check(to, sqlite3_backup_finish(backup));
  }
  copy.finish();
  verifyByOpening(connection.source(), copy);
  copy.takeItsName();
}

void copyClosedDataFile(const std::filesystem::path& source, const std::filesystem::path& target) {
  const std::filesystem::path found = existingDataFile(source);
  if (!logIsEmpty(found))
    throw StoreError("数据文件正被另一个程序使用，没有备份：" + found.string());
  std::ifstream file(found, std::ios::binary);
  if (!file) throw StoreError("不能读数据文件：" + found.string());
  NewFile copy(target);
  Block block;
  while (file.read(block.data(), block.size()) || file.gcount() > 0) {
    copy.append(block.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) throw StoreError("不能读数据文件：" + found.string());
  copy.finish();
  verifyByComparing(found, copy);
  copy.takeItsName();
}
