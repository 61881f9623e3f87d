#include "base/SystemFault.h"

#include <sys/stat.h>

#include <cerrno>

#include "base/Words.h"

namespace {

bool isFifo(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
}

}  // namespace

std::string fileFault(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
    case ENOTDIR:
      return Words::tr("文件夹不存在。");
    case EISDIR:
      return Words::tr("已经有一个同名的文件夹。");
    case EEXIST:
      return Words::tr("已经有这个文件。");
    case EACCES:
    case EPERM:
      return Words::tr("没有写入这个文件夹的权限。");
    case EROFS:
      return Words::tr("磁盘是只读的。");
    case ENOSPC:
    case EDQUOT:
      return Words::tr("磁盘已满。");
    case EFBIG:
      return Words::tr("文件太大，这个磁盘放不下。");
    case EIO:
      return Words::tr("读写磁盘时出错，请检查磁盘。");
    case ENAMETOOLONG:
      return Words::tr("文件名太长。");
    default:
      return Words::tr("系统错误 %1。", errorNumber);
  }
}

std::string deviceFault(int errorNumber, const std::string& path) {
  switch (errorNumber) {
    case ENOENT:
    case ENOTDIR:
    case ENODEV:
      return Words::tr("没有这个设备（%1）", path);
    case ENXIO:
      return isFifo(path) ? Words::tr("没有程序在接收") : Words::tr("设备没有接好");
    case EACCES:
    case EPERM:
    case EROFS:
      return Words::tr("没有使用权限（%1）", path);
    case EBUSY:
      return Words::tr("正被别的程序占用");
    case EISDIR:
      return Words::tr("%1 是文件夹", path);
    case ENOSPC:
      return Words::tr("缺纸或空间已满");
    case EPIPE:
      return Words::tr("接收的程序已退出");
    case EIO:
      return Words::tr("设备已断开");
    case ETIMEDOUT:
      return Words::tr("设备太久没有接收，请检查是否开机、缺纸");
    default:
      return Words::tr("系统错误 %1", errorNumber);
  }
}
