#include "base/SystemFault.h"

#include <sys/stat.h>

#include <cerrno>

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
      return "文件夹不存在。";
    case EISDIR:
      return "已经有一个同名的文件夹。";
    case EEXIST:
      return "已经有这个文件。";
    case EACCES:
    case EPERM:
      return "没有写入这个文件夹的权限。";
    case EROFS:
      return "磁盘是只读的。";
    case ENOSPC:
    case EDQUOT:
      return "磁盘已满。";
    case EFBIG:
      return "文件太大，这个磁盘放不下。";
    case EIO:
      return "读写磁盘时出错，请检查磁盘。";
    case ENAMETOOLONG:
      return "文件名太长。";
    default:
      return "系统错误 " + std::to_string(errorNumber) + "。";
  }
}

std::string deviceFault(int errorNumber, const std::string& path) {
  switch (errorNumber) {
    case ENOENT:
    case ENOTDIR:
    case ENODEV:
      return "没有这个设备（" + path + "）";
    case ENXIO:
      return isFifo(path) ? "没有程序在接收" : "设备没有接好";
    case EACCES:
    case EPERM:
    case EROFS:
      return "没有使用权限（" + path + "）";
    case EBUSY:
      return "正被别的程序占用";
    case EISDIR:
      return path + " 是文件夹";
    case ENOSPC:
      return "缺纸或空间已满";
    case EPIPE:
      return "接收的程序已退出";
    case EIO:
      return "设备已断开";
    case ETIMEDOUT:
      return "设备太久没有接收，请检查是否开机、缺纸";
    default:
      return "系统错误 " + std::to_string(errorNumber);
  }
}
