#include "reports/UnfinishedFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "reports/ListExport.h"

namespace {

std::string reasonText(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return "没有写入的权限";
    case ENOENT:
    case ENOTDIR:
      return "没有这个文件夹";
    case EISDIR:
      return "已经有一个同名的文件夹";
    case EROFS:
      return "那里只能读，不能写";
    case ENOSPC:
    case EDQUOT:
      return "磁盘已满";
    default:
      return std::strerror(error);
  }
}

}  // namespace

UnfinishedFile::UnfinishedFile(std::filesystem::path target)
    : target_(std::move(target)), path_(target_.string() + ".part") {
  const int file = open(path_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) failWith(errno);
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
  if (!onDisk) failWith(reason);
  std::error_code error;
  std::filesystem::rename(path_, target_, error);
  if (error) failWith(error.value());
}

void UnfinishedFile::failWith(int error) const {
  fail(reasonText(error));
}

void UnfinishedFile::fail(const std::string& why) const {
  throw ExportError("不能写入 " + target_.string() + "：" + why);
}
