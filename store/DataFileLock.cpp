#include "store/DataFileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "store/DataFilePath.h"
#include "store/StoreError.h"

// The lock lies beside the real file, so that two names of one file (a link) are one lock. The lock
// file stays when the program ends: taking it away would race with a till that just opened it.
DataFileLock::DataFileLock(const std::filesystem::path& dataFile) {
  const std::string path =
      std::filesystem::canonical(existingDataFile(dataFile)).string() + ".lock";
  file_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) == 0) return;
  const int cause = errno;
  if (file_ >= 0) close(file_);
  if (cause == EWOULDBLOCK) {
    throw StoreError("收款程序已经打开，正在使用这个数据文件，不能同时打开第二个。");
  }
  throw StoreError("不能锁定数据文件（" + path + "）：" + fileFault(cause));
}

DataFileLock::~DataFileLock() {
  close(file_);
}
