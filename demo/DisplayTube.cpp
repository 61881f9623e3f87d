#include "demo/DisplayTube.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "base/Text.h"

namespace {

constexpr int kPollMs = 50;

/// What the figure means, by the digit of ESC s n.
std::string meaning(char mode) {
  switch (mode) {
    case '1':
      return "price";
    case '2':
      return "total";
    case '3':
      return "received";
    case '4':
      return "change";
    default:
      return "plain";
  }
}

}  // namespace

DisplayTube::DisplayTube() {
  master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
    throw std::runtime_error("no pseudo terminal");
  }
  path_ = ptsname(master_);
  slave_ = open(path_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  termios raw{};
  tcgetattr(slave_, &raw);
  cfmakeraw(&raw);
  tcsetattr(slave_, TCSANOW, &raw);
  listener_ = std::thread([this] { listen(); });
}

DisplayTube::~DisplayTube() {
  stop_ = true;
  listener_.join();
  close(slave_);
  close(master_);
  // A till that was killed while it locked the line leaves an empty lock, which the toolkit
  // respects for half a minute, and the next line may have the same number.
  std::error_code none;
  std::filesystem::remove("/var/lock/LCK.." + replaced(path_.substr(sizeof "/dev"), "/", "_"),
                          none);
}

void DisplayTube::listen() {
  while (!stop_) {
    pollfd ready{master_, POLLIN, 0};
    if (poll(&ready, 1, kPollMs) <= 0) continue;
    char bytes[256];
    const ssize_t got = read(master_, bytes, sizeof bytes);
    if (got <= 0) continue;
    const std::lock_guard lock(mutex_);
    bytes_.append(bytes, std::size_t(got));
  }
}

std::vector<std::string> DisplayTube::shown() const {
  const std::lock_guard lock(mutex_);
  std::vector<std::string> figures;
  std::string mode = "plain";
  for (std::size_t at = 0; at < bytes_.size();) {
    const std::string_view rest = std::string_view(bytes_).substr(at);
    if (rest.starts_with("\x1bs") && rest.size() > 2) {
      mode = meaning(rest[2]);
      at += 3;
    } else if (rest.starts_with("\x1bQA")) {
      const std::size_t end = std::min(rest.find('\r'), rest.size());
      figures.push_back(mode + " " + std::string(rest.substr(3, end - 3)));
      at += end + 1;
    } else if (rest.starts_with("\x02M")) {
      figures.push_back("drawer");
      at += 2;
    } else {
      figures.push_back("unknown byte " + std::to_string(static_cast<unsigned char>(rest[0])));
      at += 1;
    }
  }
  return figures;
}
