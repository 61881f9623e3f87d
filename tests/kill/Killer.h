#pragma once

#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

/// Kills a process at a moment that is set while it runs, from a thread of its own.
class Killer {
 public:
  using Clock = std::chrono::steady_clock;

  explicit Killer(int process) : process_(process) {}
  /// The process is spared if its moment has not come.
  ~Killer() {
    spared_ = true;
    if (thread_.joinable()) thread_.join();
  }
  Killer(const Killer&) = delete;
  Killer& operator=(const Killer&) = delete;

  /// The moment is set once.
  void strikeIn(std::chrono::microseconds delay) {
    thread_ = std::thread([this, moment = Clock::now() + delay] { strikeAt(moment); });
  }
  /// So long after something is next written to that plain file.
  void strikeAtWrite(const std::filesystem::path& file, std::chrono::microseconds delay) {
    std::ofstream(file, std::ios::app);  // a file that is not there cannot be watched
    const int watch = inotify_init1(IN_CLOEXEC);
    if (watch < 0 || inotify_add_watch(watch, file.c_str(), IN_MODIFY) < 0) {
      throw std::logic_error("cannot watch the file");
    }
    // The kill comes before the closing, which can take milliseconds: longer than the till needs
    // from the drawer to the stored bill.
    thread_ = std::thread([this, watch, delay] {
      pollfd ready{watch, POLLIN, 0};
      while (!spared_ && poll(&ready, 1, static_cast<int>(kPatience.count())) == 0) continue;
      strikeAt(Clock::now() + delay);
      close(watch);
    });
  }
  bool struck() const { return struck_; }

 private:
  /// How soon it notices that the till is spared.
  static constexpr std::chrono::milliseconds kPatience{20};

  void strikeAt(Clock::time_point moment) {
    while (!spared_ && Clock::now() + kPatience < moment) std::this_thread::sleep_for(kPatience);
    std::this_thread::sleep_until(moment);
    if (spared_) return;
    struck_ = true;
    ::kill(process_, SIGKILL);
  }

  int process_;
  std::atomic<bool> spared_ = false, struck_ = false;
  std::thread thread_;
};
