#include "store/DataFileCopy.h"

#include <system_error>

#include "base/WholeFile.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFilePath.h"
#include "store/Engine.h"
#include "store/FileReading.h"
#include "store/StoreError.h"

namespace {

void requireOtherFile(const Connection& connection, const std::filesystem::path& target) {
  std::error_code missing;
  if (std::filesystem::equivalent(connection.source().path, target, missing))
    throw StoreError(Words::tr("不能备份到数据文件自己：%1", target.string()));
}

void finishVerified(const Connection& original, WholeFile& copy,
                    const std::filesystem::path& target) {
  try {
    requireSoundDataFile({copy.path(), original.source().password}, Soundness::kEveryPage);
  } catch (const StoreError& error) {
    throw StoreError(Words::tr("备份文件写出来不对，没有采用：%1", error.what()));
  }
  removeLogs(target);
  copy.finish();
}

}  // namespace

void copyDataFile(Connection& connection, const std::filesystem::path& target) {
  requireOtherFile(connection, target);
  WholeFile copy(target);
  const FileReading nobodyWrites(connection);
  nobodyWrites.appendTo(copy);
  finishVerified(connection, copy, target);
}

// All pages in one step, which is one reading transaction: the write-ahead log lets others write
// meanwhile. In several steps each write of another program would start the copy again.
void backUpDataFile(Connection& connection, const std::filesystem::path& target) {
  requireOtherFile(connection, target);
  WholeFile copy(target);
  {
    Connection written({copy.path(), connection.source().password}, Connection::Mode::kExisting);
    sqlite3* to = written.engine_.get();
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", connection.engine_.get(), "main");
    if (backup == nullptr) check(to, sqlite3_errcode(to));
    sqlite3_backup_step(backup, -1);
    check(to, sqlite3_backup_finish(backup));
  }
  finishVerified(connection, copy, target);
}
