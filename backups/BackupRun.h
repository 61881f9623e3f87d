#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "store/DataFilePath.h"
#include "store/DataSource.h"

/// What a run of the dated backups is to do. Plain values: the run lives in a thread of its own.
struct BackupOrder {
  DataSource shop;
  FileIdentity opened;           ///< which file the sale has
  std::filesystem::path medium;  ///< a mounted folder; empty: none
  Date today;
  bool anew = false;  ///< today's is made also where there is one
};

/// What the dated backups are like after a run.
struct BackupResult {
  std::vector<Date> here, onMedium;  ///< latest first
  std::string fault, mediumFault;    ///< why one could not be made; for people, empty for none
};

/// What the run and whoever started it tell each other.
struct BackupFlags {
  std::atomic<bool> stop = false;
  std::atomic<bool> hasLeftShop = false;  ///< the run uses neither data file nor its disk any more
};

/// Makes today's backup beside the data file and copies it to the medium, and removes what it
/// supersedes there. Without room for another data file, or without the medium, it makes none and
/// says so. Throws nothing.
[[nodiscard]] BackupResult runBackup(const BackupOrder& order, BackupFlags& flags);
