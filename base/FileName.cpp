#include "base/FileName.h"

#include <optional>
#include <string>

#include "base/Text.h"

namespace fs = std::filesystem;

namespace {

/// The folder's entry of that name in other letters; of several, the first in the alphabet, because
/// the order of a folder's entries is nobody's choice.
std::optional<std::string> entryIgnoringCase(const fs::path& folder, const std::string& name) {
  std::optional<std::string> found;
  std::error_code broken;
  fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, broken);
  for (; !broken && entry != fs::directory_iterator(); entry.increment(broken)) {
    std::string candidate = entry->path().filename().string();
    if (equalIgnoringCase(candidate, name) && (!found || candidate < *found)) {
      found = std::move(candidate);
    }
  }
  return found;
}

}  // namespace

fs::path findIgnoringCase(std::string_view path) {
  const fs::path written = replaced(std::string(path), "\\", "/");
  fs::path found;
  for (const fs::path& part : written) {
    std::error_code unreadable;
    const bool exact = part.empty() || fs::exists(found / part, unreadable);
    const std::string name = part.string();
    found /= exact ? name : entryIgnoringCase(found, name).value_or(name);
  }
  return found;
}
