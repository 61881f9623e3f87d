#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

/// Kills a process at a moment that is set while it runs, from a thread of its own.
class Killer {
 public:
  explicit Killer(int process) : process_(process) {}
  ~Killer();  ///< the process is spared if its moment has not come
  Killer(const Killer&) = delete;
  Killer& operator=(const Killer&) = delete;

  /// The moment is set once.
  void strikeIn(std::chrono::microseconds delay);
  /// So long after something is next written to that plain file.
  void strikeAtWrite(const std::filesystem::path& file, std::chrono::microseconds delay);
  bool struck() const { return struck_; }

 private:
  void strikeAt(std::chrono::steady_clock::time_point moment);
  void watch(int watch, std::chrono::microseconds delay);

  int process_;
  std::atomic<bool> spared_ = false, struck_ = false;
  std::thread thread_;
};
