#pragma once

#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <stdexcept>
#include <thread>

/// Kills a process at a moment that is set while it runs, from a thread of its own. The process is
/// spared if its moment has not come when the killer goes.
class Killer {
 public:
  using Clock = std::chrono::steady_clock;

  explicit Killer(int process) : process_(process) {}

  /// The moment is set once.
  void strikeIn(std::chrono::microseconds delay) {
    thread_ = std::jthread([this, moment = Clock::now() + delay](const std::stop_token& spared) {
      strikeAt(moment, spared);
    });
  }
  /// So long after something is next written to that plain file.
  void strikeAtWrite(const std::filesystem::path& file, std::chrono::microseconds delay) {
    std::ofstream(file, std::ios::app);  // a file that is not there cannot be watched
    const int watch = inotify_init1(IN_CLOEXEC);
    if (watch < 0 || inotify_add_watch(watch, file.c_str(), IN_MODIFY) < 0)
      throw std::logic_error("cannot watch the file");
    // The kill comes before the closing, which can take milliseconds: longer than the till needs
    // from the drawer to the stored bill.
    thread_ = std::jthread([this, watch, delay](const std::stop_token& spared) {
      pollfd ready{watch, POLLIN, 0};
      while (!spared.stop_requested() && poll(&ready, 1, kPatienceMs) == 0) continue;
      strikeAt(Clock::now() + delay, spared);
      close(watch);
    });
  }
  bool struck() const { return struck_; }

 private:
  static constexpr int kPatienceMs = 20;  ///< how soon it notices that the till is spared

  void strikeAt(Clock::time_point moment, const std::stop_token& spared) {
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any never;  // nothing but the moment or the till's being spared ends it
    never.wait_until(lock, spared, moment, [] { return false; });
    if (spared.stop_requested()) return;
    struck_ = true;
    ::kill(process_, SIGKILL);
  }

  int process_;
  std::atomic<bool> struck_ = false;
  std::jthread thread_;
};
