#pragma once

#include <filesystem>

/// Keeps a second till off the same data file: a lock on the file itself, which goes with the
/// process however that ends, and which no other name of the file avoids. The owner's tool takes it
/// only where it replaces the file; other readers don't.
class DataFileLock {
 public:
  /// Throws StoreError when another till holds the lock or it cannot be had.
  explicit DataFileLock(const std::filesystem::path& dataFile);
  /// After the last connection to the file is gone: closing any handle of a file gives up the
  /// engine's own locks on it.
  ~DataFileLock();
  DataFileLock(const DataFileLock&) = delete;
  DataFileLock& operator=(const DataFileLock&) = delete;

 private:
  int file_ = -1;
};
