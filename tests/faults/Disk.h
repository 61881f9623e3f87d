#pragma once

#include <sqlcipher/sqlite3.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// One thing that the engine did to its files.
struct DiskEvent {
  enum class Kind { kWrite, kTruncate, kSync, kDelete };
  Kind kind = Kind::kWrite;
  std::string file;         ///< its path
  std::int64_t offset = 0;  ///< of a write; the new size of a truncation
  std::string bytes;        ///< of a write
  /// What the world outside had seen before this event (Disk::outside).
  std::int64_t outside = 0;
};

/// A file layer under the engine, from its making to its end the one that newly opened data files
/// use. Everything goes to the real files, but no sync waits for the real disk. It can write down
/// what happens, and it can fail at a chosen call. There is one at a time.
class Disk {
 public:
  enum class Fault {
    kFull,      ///< writes: no space left
    kBroken,    ///< writes, truncations and syncs: I/O error
    kReadOnly,  ///< writes: the file became read-only
    kLocked     ///< another program holds the log's write lock
  };

  Disk() {
    disk_ = this;
    layer_ = *real_;
    layer_.zName = "disk-of-the-test";
    layer_.xOpen = open;
    layer_.xDelete = remove;
    // Nobody waits here for a lock: the engine believes that it has slept.
    layer_.xSleep = [](sqlite3_vfs*, int microseconds) { return microseconds; };
    sqlite3_vfs_register(&layer_, 1);
  }
  ~Disk() {
    sqlite3_vfs_unregister(&layer_);
    sqlite3_vfs_register(real_, 1);
  }
  Disk(const Disk&) = delete;
  Disk& operator=(const Disk&) = delete;

  /// Whether `events` grows.
  void record(bool on) { recording_ = on; }
  std::vector<DiskEvent> events;
  /// What the world outside has seen, as a figure that grows; asked before every event.
  std::function<std::int64_t()> outside = [] { return 0; };

  static constexpr std::int64_t kUntilMended = 1'000'000'000;
  /// The n-th call of that kind from now on (the first is 1) and those after it fail, as many as
  /// said.
  void breakAt(Fault fault, std::int64_t call, std::int64_t failing) {
    armed_ = true;
    failed_ = false;
    fault_ = fault;
    first_ = call;
    last_ = call + failing - 1;
    calls_ = 0;
  }
  void mend() { armed_ = false; }
  /// Whether the call that was to fail came.
  bool failed() const { return failed_; }

 private:
  struct File {
    const sqlite3_io_methods* methods;  ///< of the real file
    std::string name;                   ///< empty for a temporary file
  };

  bool fails(Fault fault) {
    if (!armed_ || fault != fault_) return false;
    ++calls_;
    if (calls_ < first_ || calls_ > last_) return false;
    return failed_ = true;
  }
  void note(const std::string& name, DiskEvent::Kind kind, std::int64_t offset = 0,
            std::string bytes = {}) {
    if (recording_ && !name.empty())
      events.push_back({kind, name, offset, std::move(bytes), outside()});
  }

  // The engine's calls, by the names of its file layer.
  static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
    sqlite3_vfs* real = disk_->real_;
    const int code = real->xOpen(real, name, file, flags, given);
    if (file->pMethods == nullptr) return code;
    disk_->files_[file] = {file->pMethods, name == nullptr ? "" : name};
    sqlite3_io_methods& methods =
        disk_->watched_.try_emplace(file->pMethods, *file->pMethods).first->second;
    methods.iVersion = 2;  // without memory mapping, which would pass this layer by
    methods.xClose = [](sqlite3_file* closed) {
      return disk_->files_.extract(closed).mapped().methods->xClose(closed);
    };
    methods.xWrite = write;
    methods.xTruncate = truncate;
    methods.xSync = sync;
    methods.xShmLock = shmLock;
    file->pMethods = &methods;
    return code;
  }
  static int write(sqlite3_file* file, const void* from, int count, sqlite3_int64 offset) {
    if (disk_->fails(Fault::kFull)) return SQLITE_FULL;
    if (disk_->fails(Fault::kBroken)) return SQLITE_IOERR_WRITE;
    if (disk_->fails(Fault::kReadOnly)) return SQLITE_READONLY;
    const File& real = disk_->files_.at(file);
    disk_->note(real.name, DiskEvent::Kind::kWrite, offset,
                std::string(static_cast<const char*>(from), static_cast<std::size_t>(count)));
    return real.methods->xWrite(file, from, count, offset);
  }
  static int truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (disk_->fails(Fault::kBroken)) return SQLITE_IOERR_TRUNCATE;
    const File& real = disk_->files_.at(file);
    disk_->note(real.name, DiskEvent::Kind::kTruncate, size);
    return real.methods->xTruncate(file, size);
  }
  static int sync(sqlite3_file* file, int) {
    if (disk_->fails(Fault::kBroken)) return SQLITE_IOERR_FSYNC;
    disk_->note(disk_->files_.at(file).name, DiskEvent::Kind::kSync);
    return SQLITE_OK;
  }
  static int shmLock(sqlite3_file* file, int offset, int count, int flags) {
    const bool taken = flags == (SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE);
    if (taken && disk_->fails(Fault::kLocked)) return SQLITE_BUSY;
    return disk_->files_.at(file).methods->xShmLock(file, offset, count, flags);
  }
  static int remove(sqlite3_vfs*, const char* name, int syncFolder) {
    disk_->note(name, DiskEvent::Kind::kDelete);
    return disk_->real_->xDelete(disk_->real_, name, syncFolder);
  }

  static inline Disk* disk_ = nullptr;
  sqlite3_vfs layer_{};
  sqlite3_vfs* real_ = sqlite3_vfs_find(nullptr);
  std::map<sqlite3_file*, File> files_;
  /// For each kind of real file, its calls but for those that the test wants to see.
  std::map<const sqlite3_io_methods*, sqlite3_io_methods> watched_;
  bool recording_ = false, armed_ = false, failed_ = false;
  Fault fault_ = Fault::kFull;
  std::int64_t first_ = 0, last_ = 0, calls_ = 0;
};
