#include "Disk.h"

#include <sqlcipher/sqlite3.h>

#include <cstddef>
#include <utility>

/// A file of this layer: the engine sees the first member, the real file follows in memory.
struct LayerFile {
  sqlite3_file base;
  Disk* disk;
  const char* name;  ///< the engine keeps it as long as the file; none for a temporary file
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

struct Disk::Layer {
  sqlite3_vfs vfs{};
  sqlite3_vfs* real = nullptr;
};

/// The engine's calls, by the names of its file layer.
struct DiskCalls {
  static LayerFile* of(sqlite3_file* file) { return reinterpret_cast<LayerFile*>(file); }
  static sqlite3_file* real(sqlite3_file* file) { return of(file)->real(); }
  static const sqlite3_io_methods& methods(sqlite3_file* file) { return *real(file)->pMethods; }
  static Disk& disk(sqlite3_vfs* vfs) { return *static_cast<Disk*>(vfs->pAppData); }

  static void note(sqlite3_file* file, DiskEvent::Kind kind, std::int64_t offset = 0,
                   std::string bytes = {}) {
    if (of(file)->name == nullptr) return;
    of(file)->disk->note({kind, of(file)->name, offset, std::move(bytes), 0});
  }

  static int close(sqlite3_file* file) { return methods(file).xClose(real(file)); }
  static int read(sqlite3_file* file, void* to, int count, sqlite3_int64 offset) {
    return methods(file).xRead(real(file), to, count, offset);
  }
  static int write(sqlite3_file* file, const void* from, int count, sqlite3_int64 offset) {
    Disk& disk = *of(file)->disk;
    if (disk.fails(Disk::Fault::kFull)) return SQLITE_FULL;
    if (disk.fails(Disk::Fault::kBroken)) return SQLITE_IOERR_WRITE;
    if (disk.fails(Disk::Fault::kReadOnly)) return SQLITE_READONLY;
    note(file, DiskEvent::Kind::kWrite, offset,
         std::string(static_cast<const char*>(from), static_cast<std::size_t>(count)));
    return methods(file).xWrite(real(file), from, count, offset);
  }
  static int truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (of(file)->disk->fails(Disk::Fault::kBroken)) return SQLITE_IOERR_TRUNCATE;
    note(file, DiskEvent::Kind::kTruncate, size);
    return methods(file).xTruncate(real(file), size);
  }
  static int sync(sqlite3_file* file, int) {
    if (of(file)->disk->fails(Disk::Fault::kBroken)) return SQLITE_IOERR_FSYNC;
    note(file, DiskEvent::Kind::kSync);
    return SQLITE_OK;
  }
  static int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return methods(file).xFileSize(real(file), size);
  }
  static int lock(sqlite3_file* file, int level) { return methods(file).xLock(real(file), level); }
  static int unlock(sqlite3_file* file, int level) {
    return methods(file).xUnlock(real(file), level);
  }
  static int checkReservedLock(sqlite3_file* file, int* held) {
    return methods(file).xCheckReservedLock(real(file), held);
  }
  static int fileControl(sqlite3_file* file, int what, void* argument) {
    return methods(file).xFileControl(real(file), what, argument);
  }
  static int sectorSize(sqlite3_file* file) { return methods(file).xSectorSize(real(file)); }
  static int characteristics(sqlite3_file* file) {
    return methods(file).xDeviceCharacteristics(real(file));
  }
  static int shmMap(sqlite3_file* file, int region, int size, int extend, void volatile** at) {
    return methods(file).xShmMap(real(file), region, size, extend, at);
  }
  static int shmLock(sqlite3_file* file, int offset, int count, int flags) {
    const bool taken = flags == (SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE);
    if (taken && of(file)->disk->fails(Disk::Fault::kLocked)) return SQLITE_BUSY;
    return methods(file).xShmLock(real(file), offset, count, flags);
  }
  static void shmBarrier(sqlite3_file* file) { methods(file).xShmBarrier(real(file)); }
  static int shmUnmap(sqlite3_file* file, int remove) {
    return methods(file).xShmUnmap(real(file), remove);
  }

  static int open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* given);
  static int remove(sqlite3_vfs* vfs, const char* name, int syncFolder) {
    disk(vfs).note({DiskEvent::Kind::kDelete, name, 0, {}, 0});
    sqlite3_vfs* below = disk(vfs).layer_->real;
    return below->xDelete(below, name, syncFolder);
  }
  // Nobody waits here for a lock: the engine believes that it has slept.
  static int sleep(sqlite3_vfs*, int microseconds) { return microseconds; }
};

namespace {

// Version 2: shared memory for the log, no memory mapping, which would pass this layer by.
constexpr sqlite3_io_methods kMethods = {2,
                                         DiskCalls::close,
                                         DiskCalls::read,
                                         DiskCalls::write,
                                         DiskCalls::truncate,
                                         DiskCalls::sync,
                                         DiskCalls::fileSize,
                                         DiskCalls::lock,
                                         DiskCalls::unlock,
                                         DiskCalls::checkReservedLock,
                                         DiskCalls::fileControl,
                                         DiskCalls::sectorSize,
                                         DiskCalls::characteristics,
                                         DiskCalls::shmMap,
                                         DiskCalls::shmLock,
                                         DiskCalls::shmBarrier,
                                         DiskCalls::shmUnmap,
                                         nullptr,
                                         nullptr};

}  // namespace

int DiskCalls::open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* given) {
  LayerFile* opened = of(file);
  opened->disk = &disk(vfs);
  opened->name = name;
  sqlite3_vfs* below = disk(vfs).layer_->real;
  const int code = below->xOpen(below, name, opened->real(), flags, given);
  opened->base.pMethods = opened->real()->pMethods == nullptr ? nullptr : &kMethods;
  return code;
}

Disk::Disk() : layer_(std::make_unique<Layer>()) {
  layer_->real = sqlite3_vfs_find(nullptr);
  layer_->vfs = *layer_->real;
  layer_->vfs.zName = "disk-of-the-test";
  layer_->vfs.szOsFile = static_cast<int>(sizeof(LayerFile)) + layer_->real->szOsFile;
  layer_->vfs.pAppData = this;
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

void Disk::mend() {
  armed_ = false;
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
