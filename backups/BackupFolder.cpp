#include "backups/BackupFolder.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "backups/Generations.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::string> namesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  for (fs::directory_iterator entry(folder, fault), end; !fault && entry != end;
       entry.increment(fault))
    names.push_back(entry->path().filename().string());
  return names;
}

}  // namespace

BackupFolder::BackupFolder(fs::path folder, const fs::path& dataFile)
    : folder_(std::move(folder)),
      stem_(dataFile.stem().string() + "-"),
      extension_(dataFile.extension().string()) {}

BackupFolder BackupFolder::beside(const fs::path& dataFile) {
  return {dataFile.parent_path() / "backups", dataFile};
}

fs::path BackupFolder::file(const Date& date) const {
  return folder_ / (stem_ + dateText(date)).append(extension_);
}

std::vector<Date> BackupFolder::dates() const {
  std::vector<Date> found;
  for (const std::string& name : namesIn(folder_)) {
    if (!name.starts_with(stem_)) continue;
    const auto day = parseDateTime(std::string_view(name).substr(stem_.size()).substr(0, 10));
    if (day && file(day->date).filename() == name) found.push_back(day->date);
  }
  std::ranges::sort(found, std::greater());
  return found;
}

// An unfinished one has the name that it was to get, and more behind it (base/WholeFile.h).
void BackupFolder::prune(const Date& today) const {
  std::error_code ignored;
  for (const Date& date : supersededGenerations(dates(), today)) fs::remove(file(date), ignored);
  for (const std::string& name : namesIn(folder_)) {
    const std::size_t whole = file(today).filename().string().size();
    if (name.size() <= whole || !name.starts_with(stem_)) continue;
    const auto day = parseDateTime(std::string_view(name).substr(stem_.size(), 10));
    const bool isUnfinished = day && name.starts_with(file(day->date).filename().string() + ".");
    if (isUnfinished) fs::remove(folder_ / name, ignored);
  }
}
