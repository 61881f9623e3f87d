#include "base/FileError.h"

#include <cerrno>

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
