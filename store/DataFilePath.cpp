#include "store/DataFilePath.h"

#include <cerrno>
#include <cstring>

#include "base/FileName.h"
#include "store/StoreError.h"

std::filesystem::path existingDataFile(const std::filesystem::path& path) {
  std::filesystem::path found = findIgnoringCase(path.string());
  std::error_code unreadable;  // counts as missing
  const std::filesystem::file_status status = std::filesystem::status(found, unreadable);
  if (std::filesystem::is_regular_file(status)) return found;
  if (std::filesystem::is_directory(status)) {
    throw StoreError("数据文件的位置是一个文件夹：" + found.string());
  }
  if (std::filesystem::exists(status)) {
    throw StoreError("数据文件的位置不是普通文件：" + found.string());
  }
  throw StoreError("找不到数据文件：" + path.string());
}

std::string fileFault(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
      return "文件夹不存在。";
    case EACCES:
    case EPERM:
      return "没有写入这个文件夹的权限。";
    case EROFS:
      return "磁盘是只读的。";
    case ENOSPC:
    case EDQUOT:
      return "磁盘已满。";
    default:
      return std::strerror(errorNumber);
  }
}
