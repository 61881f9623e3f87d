#include "reports/UnfinishedFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "reports/ListExport.h"

UnfinishedFile::UnfinishedFile(std::filesystem::path target)
    : target_(std::move(target)), path_(target_.string() + ".part") {
  const int file = open(path_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) fail(std::strerror(errno));
  close(file);
}

UnfinishedFile::~UnfinishedFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

void UnfinishedFile::finish() {
  const int file = open(path_.c_str(), O_WRONLY | O_CLOEXEC);
  const bool onDisk = file >= 0 && fsync(file) == 0;
  const int reason = errno;
  if (file >= 0) close(file);
  if (!onDisk) fail(std::strerror(reason));
  std::error_code error;
  std::filesystem::rename(path_, target_, error);
  if (error) fail(error.message());
}

void UnfinishedFile::fail(const std::string& why) const {
  throw ExportError("不能写入 " + target_.string() + "：" + why);
}
