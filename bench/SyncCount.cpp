#include "bench/SyncCount.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace {
std::atomic<long> syncs = 0;
}

long syncCount() {
  return syncs;
}

extern "C" int fsync(int file) {
  ++syncs;
  return static_cast<int>(syscall(SYS_fsync, file));
}

extern "C" int fdatasync(int file) {
  ++syncs;
  return static_cast<int>(syscall(SYS_fdatasync, file));
}
