#include "bench/SyncCount.h"

#include <limits.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <string>
#include <string_view>

namespace {

std::atomic<long> syncs = 0;
std::atomic<long> dataFileSyncs = 0;

void count(int file) {
  ++syncs;
  char name[PATH_MAX];
  const ssize_t length =
      readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), name, sizeof name);
  if (length > 0 && std::string_view(name, static_cast<std::size_t>(length)).ends_with(".mdb")) {
    ++dataFileSyncs;
  }
}

}  // namespace

Syncs syncCount() {
  return {syncs, dataFileSyncs};
}

extern "C" int fsync(int file) {
  count(file);
  return static_cast<int>(syscall(SYS_fsync, file));
}

extern "C" int fdatasync(int file) {
  count(file);
  return static_cast<int>(syscall(SYS_fdatasync, file));
}
