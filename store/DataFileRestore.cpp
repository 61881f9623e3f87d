#include "store/DataFileRestore.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>

#include "base/FileName.h"
#include "base/SystemFault.h"
#include "base/WholeFile.h"
#include "base/Words.h"
#include "store/DataFileLock.h"
#include "store/DataFilePath.h"
#include "store/StoreError.h"

namespace fs = std::filesystem;

namespace {

void requireClosedBackup(const fs::path& backup, const fs::path& file) {
  std::error_code fault;
  if (!fs::is_regular_file(backup, fault))
    throw StoreError(Words::tr("找不到备份文件：%1", backup.string()));
  if (fs::equivalent(backup, file, fault))
    throw StoreError(Words::tr("备份文件就是数据文件自己：%1", backup.string()));
  for (const char* part : {"-wal", "-journal"}) {
    const fs::path log = backup.string() + part;
    const auto size = fs::file_size(log, fault);
    if (fault || size == 0) continue;
    throw StoreError(
        Words::tr("备份文件旁边的日志 %1 里还有没并入的账目。请先用 tilladmin backup "
                  "给它做一个备份，再用那个备份恢复。",
                  log.string()));
  }
}

void copyBytes(const fs::path& from, WholeFile& to) {
  std::ifstream file(from, std::ios::binary);
  std::array<char, 65'536> block;
  while (file.read(block.data(), block.size()) || file.gcount() > 0)
    to.append(std::string_view(block.data(), static_cast<std::size_t>(file.gcount())));
  if (!file.eof()) throw StoreError(Words::tr("不能读备份文件：%1", from.string()));
}

// The file goes first: when the program is killed in between, no file is there, which is told at
// the next start, and not one without the log that holds its last sales.
bool putAside(const fs::path& file, const fs::path& aside) {
  bool any = false;
  for (const char* part : {"", "-wal", "-shm", "-journal"}) {
    const std::string from = file.string() + part, to = aside.string() + part;
    if (!fs::exists(fs::symlink_status(from))) continue;
    if (fs::exists(fs::symlink_status(to)))
      throw StoreError(Words::tr("已经有这个文件，不会覆盖：%1", to));
    std::error_code fault;
    fs::rename(from, to, fault);
    if (fault)
      throw StoreError(Words::tr("不能把 %1 改名为 %2：%3", from, to, fileFault(fault.value())));
    any = true;
  }
  return any;
}

}  // namespace

fs::path restoreDataFile(const fs::path& backup, const DataSource& target,
                         const std::string& mark) {
  const fs::path from = findIgnoringCase(backup.string());
  const fs::path file = findIgnoringCase(target.path.string());
  requireClosedBackup(from, file);
  std::optional<DataFileLock> noTill;
  std::error_code unreadable;
  if (fs::exists(file, unreadable)) noTill.emplace(file);
  WholeFile copy(file);
  copyBytes(from, copy);
  try {
    requireSoundDataFile({copy.path(), target.password}, Soundness::kEveryEntry);
  } catch (const StoreError& error) {
    throw StoreError(Words::tr("没有恢复，备份文件不能用：%1", error.what()));
  }
  copy.keepOwnerOf(file);
  const fs::path aside = file.string() + "." + mark;
  const bool hadOld = putAside(file, aside);
  try {
    copy.finish();
  } catch (const FileError& error) {
    throw StoreError(error.what() + (Words::tr("原来的数据文件现在是 %1", aside.string())));
  }
  return hadOld ? aside : fs::path();
}
