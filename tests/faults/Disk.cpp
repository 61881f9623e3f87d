#include "Disk.h"

#include <sqlcipher/sqlite3.h>

#include <map>
#include <utility>

struct Disk::Layer {
  struct File {
    const sqlite3_io_methods* methods;  ///< of the real file
    std::string name;                   ///< empty for a temporary file
  };

  sqlite3_vfs vfs{};
  sqlite3_vfs* real = nullptr;
  std::map<sqlite3_file*, File> files;
  /// For each kind of real file, its calls but for those that the test wants to see.
  std::map<const sqlite3_io_methods*, sqlite3_io_methods> watched;
};

/// The engine's calls, by the names of its file layer. A file knows no disk: there is one at a
/// time.
struct DiskCalls {
  static inline Disk* disk = nullptr;

  static const sqlite3_io_methods& real(sqlite3_file* file) {
    return *disk->layer_->files.at(file).methods;
  }
  static void note(sqlite3_file* file, DiskEvent::Kind kind, std::int64_t offset = 0,
                   std::string bytes = {}) {
    const std::string& name = disk->layer_->files.at(file).name;
    if (!name.empty()) disk->note({kind, name, offset, std::move(bytes), 0});
  }

  static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
    Disk::Layer& layer = *disk->layer_;
    const int code = layer.real->xOpen(layer.real, name, file, flags, given);
    if (file->pMethods == nullptr) return code;
    layer.files[file] = {file->pMethods, name == nullptr ? "" : name};
    file->pMethods = &watched(*file->pMethods);
    return code;
  }
  static const sqlite3_io_methods& watched(const sqlite3_io_methods& real) {
    sqlite3_io_methods& methods = disk->layer_->watched.try_emplace(&real, real).first->second;
    methods.iVersion = 2;  // without memory mapping, which would pass this layer by
    methods.xClose = close;
    methods.xWrite = write;
    methods.xTruncate = truncate;
    methods.xSync = sync;
    methods.xShmLock = shmLock;
    return methods;
  }
  static int close(sqlite3_file* file) {
    const sqlite3_io_methods& methods = real(file);
    disk->layer_->files.erase(file);
    return methods.xClose(file);
  }
  static int write(sqlite3_file* file, const void* from, int count, sqlite3_int64 offset) {
    if (disk->fails(Disk::Fault::kFull)) return SQLITE_FULL;
    if (disk->fails(Disk::Fault::kBroken)) return SQLITE_IOERR_WRITE;
    if (disk->fails(Disk::Fault::kReadOnly)) return SQLITE_READONLY;
    note(file, DiskEvent::Kind::kWrite, offset,
         std::string(static_cast<const char*>(from), static_cast<std::size_t>(count)));
    return real(file).xWrite(file, from, count, offset);
  }
  static int truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (disk->fails(Disk::Fault::kBroken)) return SQLITE_IOERR_TRUNCATE;
    note(file, DiskEvent::Kind::kTruncate, size);
    return real(file).xTruncate(file, size);
  }
  static int sync(sqlite3_file* file, int) {
    if (disk->fails(Disk::Fault::kBroken)) return SQLITE_IOERR_FSYNC;
    note(file, DiskEvent::Kind::kSync);
    return SQLITE_OK;
  }
  static int shmLock(sqlite3_file* file, int offset, int count, int flags) {
    const bool taken = flags == (SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE);
    if (taken && disk->fails(Disk::Fault::kLocked)) return SQLITE_BUSY;
    return real(file).xShmLock(file, offset, count, flags);
  }
  static int remove(sqlite3_vfs*, const char* name, int syncFolder) {
    disk->note({DiskEvent::Kind::kDelete, name, 0, {}, 0});
    sqlite3_vfs* below = disk->layer_->real;
    return below->xDelete(below, name, syncFolder);
  }
  // Nobody waits here for a lock: the engine believes that it has slept.
  static int sleep(sqlite3_vfs*, int microseconds) { return microseconds; }
};

Disk::Disk() : layer_(std::make_unique<Layer>()) {
  DiskCalls::disk = this;
  layer_->real = sqlite3_vfs_find(nullptr);
  layer_->vfs = *layer_->real;
  layer_->vfs.zName = "disk-of-the-test";
  layer_->vfs.xOpen = DiskCalls::open;
  layer_->vfs.xDelete = DiskCalls::remove;
  layer_->vfs.xSleep = DiskCalls::sleep;
  sqlite3_vfs_register(&layer_->vfs, 1);
}

Disk::~Disk() {
  sqlite3_vfs_unregister(&layer_->vfs);
  sqlite3_vfs_register(layer_->real, 1);
}

void Disk::breakAt(Fault fault, std::int64_t call, std::int64_t failing) {
  armed_ = true;
  failed_ = false;
  fault_ = fault;
  first_ = call;
  last_ = call + failing - 1;
  calls_ = 0;
}

bool Disk::fails(Fault fault) {
  if (!armed_ || fault != fault_) return false;
  ++calls_;
  if (calls_ < first_ || calls_ > last_) return false;
  failed_ = true;
  return true;
}

void Disk::note(DiskEvent event) {
  if (!recording_) return;
  event.outside = outside();
  events.push_back(std::move(event));
}
