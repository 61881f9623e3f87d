#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
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
/// what happens, and it can fail at a chosen call.
class Disk {
 public:
  enum class Fault {
    kFull,      ///< writes: no space left
    kBroken,    ///< writes, truncations and syncs: I/O error
    kReadOnly,  ///< writes: the file became read-only
    kLocked     ///< another program holds the log's write lock
  };

  Disk();
  ~Disk();
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
  void breakAt(Fault fault, std::int64_t call, std::int64_t failing);
  void mend() { armed_ = false; }
  /// Whether the call that was to fail came.
  bool failed() const { return failed_; }

 private:
  friend struct DiskCalls;
  bool fails(Fault fault);
  void note(DiskEvent event);

  struct Layer;
  std::unique_ptr<Layer> layer_;
  bool recording_ = false;
  bool armed_ = false, failed_ = false;
  Fault fault_ = Fault::kFull;
  std::int64_t first_ = 0, last_ = 0, calls_ = 0;
};
