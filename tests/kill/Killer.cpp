#include "kill/Killer.h"

#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPatience(20);  // how soon it notices that the till is spared

}  // namespace

Killer::~Killer() {
  spared_ = true;
  if (thread_.joinable()) thread_.join();
}

void Killer::strikeIn(std::chrono::microseconds delay) {
  thread_ = std::thread([this, moment = Clock::now() + delay] { strikeAt(moment); });
}

void Killer::strikeAtWrite(const std::filesystem::path& file, std::chrono::microseconds delay) {
  std::ofstream(file, std::ios::app);  // a file that is not there cannot be watched
  const int watch = inotify_init1(IN_CLOEXEC);
  if (watch < 0 || inotify_add_watch(watch, file.c_str(), IN_MODIFY) < 0) {
    throw std::logic_error("cannot watch the file");
  }
  thread_ = std::thread([this, watch, delay] { this->watch(watch, delay); });
}

// The kill comes before the closing, which can take milliseconds: longer than the till needs from
// the drawer to the stored bill.
void Killer::watch(int watch, std::chrono::microseconds delay) {
  pollfd ready{watch, POLLIN, 0};
  while (!spared_ && poll(&ready, 1, static_cast<int>(kPatience.count())) == 0) continue;
  strikeAt(Clock::now() + delay);
  close(watch);
}

void Killer::strikeAt(Clock::time_point moment) {
  while (!spared_ && Clock::now() + kPatience < moment) std::this_thread::sleep_for(kPatience);
  std::this_thread::sleep_until(moment);
  if (spared_) return;
  struck_ = true;
  ::kill(process_, SIGKILL);
}
