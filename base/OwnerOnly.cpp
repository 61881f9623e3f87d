#include "base/OwnerOnly.h"

#include <system_error>

namespace fs = std::filesystem;

bool makeOwnerOnly(const fs::path& file) {
  constexpr fs::perms kOthers = fs::perms::group_all | fs::perms::others_all;
  std::error_code failed;
  const fs::file_status status = fs::status(file, failed);
  if (!fs::exists(status) || (status.permissions() & kOthers) == fs::perms::none) return true;
  fs::permissions(file, kOthers, fs::perm_options::remove, failed);
  return !failed;
}
