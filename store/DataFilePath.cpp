#include "store/DataFilePath.h"

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "base/FileName.h"
#include "base/Words.h"
#include "store/StoreError.h"

namespace fs = std::filesystem;

namespace {

void requireOneName(const fs::path& dataFile, std::uintmax_t names) {
  if (names <= 1) return;
  throw StoreError(Words::tr(
      "数据文件 %1 在磁盘上另有一个名字（硬链接）。两个名字同时使用会丢失数据，请只留一个。",
      dataFile.string()));
}

}  // namespace

fs::path existingDataFile(const fs::path& path) {
  fs::path found = findIgnoringCase(path.string());
  std::error_code fault;
  const fs::file_status status = fs::status(found, fault);
  if (fs::is_regular_file(status)) {
    requireOneName(found, fs::hard_link_count(found, fault));
    return found;
  }
  if (fs::is_directory(status)) {
    throw StoreError(Words::tr("数据文件的位置是一个文件夹：%1", found.string()));
  }
  if (fs::exists(status)) {
    throw StoreError(Words::tr("数据文件的位置不是普通文件：%1", found.string()));
  }
  if (fault == std::errc::permission_denied) {
    throw StoreError(Words::tr("没有权限进入数据文件所在的文件夹：%1", found.string()));
  }
  throw StoreError(Words::tr("找不到数据文件：%1", path.string()));
}

void removeLogs(const fs::path& dataFile) {
  for (const char* part : {"-wal", "-shm", "-journal"}) {
    std::error_code ignored;
    fs::remove(dataFile.string() + part, ignored);
  }
}

FileIdentity FileIdentity::of(const fs::path& dataFile) {
  struct stat status {};
  if (stat(dataFile.c_str(), &status) != 0)
    throw StoreError(Words::tr("找不到数据文件：%1", dataFile.string()));
  return {status.st_dev, status.st_ino};
}

void requireSameDataFile(const fs::path& path, const FileIdentity& opened) {
  struct stat now {};
  if (stat(path.c_str(), &now) != 0 || FileIdentity{now.st_dev, now.st_ino} != opened) {
    throw StoreError(
        Words::tr("数据文件 %1 "
                  "在使用中被删除、移走或换成了别的文件，不能再保存。请把原来的文件放回原处。放不回"
                  "时请退出程序，退出时会备份到此为止的账目，可用 tilladmin restore 恢复。",
                  path.string()));
  }
  requireOneName(path, now.st_nlink);
}
