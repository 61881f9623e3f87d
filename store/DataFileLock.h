#pragma once

#include <filesystem>

/// Keeps a second till off the same data file: a lock on "<data file>.lock" beside it, which goes
/// with the process however that ends. The owner's tool and other readers do not take it.
class DataFileLock {
 public:
  /// Throws StoreError when another till holds the lock or it cannot be made.
  explicit DataFileLock(const std::filesystem::path& dataFile);
  ~DataFileLock();
  DataFileLock(const DataFileLock&) = delete;
  DataFileLock& operator=(const DataFileLock&) = delete;

 private:
  int file_ = -1;
};
