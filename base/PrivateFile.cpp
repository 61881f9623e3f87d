#include "base/PrivateFile.h"

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

bool isSharedFolder(const struct stat& folder) {
  return (folder.st_mode & S_ISGID) != 0 && (folder.st_mode & S_IRWXO) == 0;
}

}  // namespace

bool isShared(const fs::path& folder) {
  struct stat status {};
  return stat(folder.c_str(), &status) == 0 && isSharedFolder(status);
}

bool makePrivate(const fs::path& file) {
  struct stat status {
  }, folder{};
  if (stat(file.c_str(), &status) != 0) return true;
  const fs::path parent = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const bool isGroups = stat(parent.c_str(), &folder) == 0 && isSharedFolder(folder) &&
                        folder.st_gid == status.st_gid;
  const mode_t strangers = isGroups ? S_IRWXO : S_IRWXG | S_IRWXO;
  const mode_t forGroup = S_ISDIR(status.st_mode) ? S_IRWXG : S_IRGRP | S_IWGRP;
  const mode_t wanted = (status.st_mode & 07777 & ~strangers) | (isGroups ? forGroup : 0);
  if (wanted == (status.st_mode & 07777) || chmod(file.c_str(), wanted) == 0) return true;
  return (status.st_mode & strangers) == 0;
}
