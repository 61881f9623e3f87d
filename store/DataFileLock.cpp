#include "store/DataFileLock.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "base/SystemFault.h"
#include "base/Words.h"
#include "store/DataFilePath.h"
#include "store/StoreError.h"

namespace {

// Far behind the engine's own lock bytes (from 2^30 on) and any page of the file.
constexpr off_t kLockByte = off_t{1} << 50;

std::string userName(uid_t user) {
  const passwd* entry = getpwuid(user);
  return entry != nullptr ? entry->pw_name : std::to_string(user);
}

std::string openingFault(const std::filesystem::path& dataFile, int error) {
  struct stat status {};
  const bool isAnothers = (error == EACCES || error == EPERM) &&
                          stat(dataFile.c_str(), &status) == 0 && status.st_uid != geteuid();
  if (!isAnothers) return fileFault(error);
  return Words::tr(
      "它属于用户 %1，用户 %2 不能读写。请用那个用户启动，或者请管理员把文件交给现在的用户。",
      userName(status.st_uid), userName(geteuid()));
}

// A lock of this handle, not of the process: the engine opens and closes handles of its own, which
// would give up a lock of the process.
bool lockedByNobodyElse(int file) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  lock.l_start = kLockByte;
  lock.l_len = 1;
  return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

void take(int file, const std::filesystem::path& dataFile) {
  if (!lockedByNobodyElse(file)) {
    const int cause = errno;
    if (cause == EAGAIN || cause == EACCES)
      throw StoreError(Words::tr("收款程序已经打开，正在使用这个数据文件，不能同时打开第二个。"));
    throw StoreError(Words::tr("不能锁定数据文件 %1：%2", dataFile.string(), fileFault(cause)));
  }
  struct stat locked {};
  fstat(file, &locked);
  // It can have been put aside between the opening and the lock.
  requireSameDataFile(dataFile, {locked.st_dev, locked.st_ino});
}

}  // namespace

DataFileLock::DataFileLock(const std::filesystem::path& dataFile) {
  const std::filesystem::path found = existingDataFile(dataFile);
  file_ = open(found.c_str(), O_RDWR | O_CLOEXEC);
  if (file_ < 0)
    throw StoreError(
        Words::tr("打不开数据文件 %1：%2", found.string(), openingFault(found, errno)));
  try {
    take(file_, found);
  } catch (...) {
    close(file_);
    throw;
  }
}

DataFileLock::~DataFileLock() {
  close(file_);
}
