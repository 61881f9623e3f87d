#pragma once

#include <sys/types.h>

#include <filesystem>

/// The data file as it stands on disk (found without regard to case). Throws StoreError when it is
/// missing, no file, or has a second name (a hard link): the engine's log goes by the name, so that
/// two programs that open it by one name each would spoil it.
std::filesystem::path existingDataFile(const std::filesystem::path& path);

/// Takes away what an earlier file of that name left of its log: the engine would replay it into
/// the next file of the name.
void removeLogs(const std::filesystem::path& dataFile);

/// Which file it is, whatever its name.
struct FileIdentity {
  dev_t device;
  ino_t inode;
  bool operator==(const FileIdentity&) const = default;

  /// Of an existing data file. Throws StoreError.
  static FileIdentity of(const std::filesystem::path& dataFile);
};

/// Throws StoreError unless the data file of that path is still the one that was opened, under one
/// name.
void requireSameDataFile(const std::filesystem::path& path, const FileIdentity& opened);
