#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/DateTime.h"

/// A folder with a data file's backups by date, one a day: POS-2026-11-23.mdb for POS.mdb. What has
/// such a name is a whole and verified backup. Other files there are left alone.
class BackupFolder {
 public:
  BackupFolder(std::filesystem::path folder, const std::filesystem::path& dataFile);
  /// The folder "backups" beside the data file.
  static BackupFolder beside(const std::filesystem::path& dataFile);

  const std::filesystem::path& path() const { return folder_; }
  std::filesystem::path file(const Date& date) const;
  /// The days that have one, latest first; none when the folder is not there or cannot be read.
  std::vector<Date> dates() const;
  /// Removes what today's backup supersedes (backups/Generations.h), and what a kill left behind
  /// unfinished. Only for the one program that makes backups there. What cannot be removed stays.
  void prune(const Date& today) const;

 private:
  std::filesystem::path folder_;
  std::string stem_, extension_;
};
