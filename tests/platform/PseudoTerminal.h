#pragma once

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

/// A device for the tests: the till opens `path()`, the test reads what arrived.
class PseudoTerminal {
 public:
  PseudoTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0)
      throw std::runtime_error("no pseudo terminal");
    path_ = ptsname(master_);
  }
  ~PseudoTerminal() { unplug(); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& path() const { return path_; }
  /// What has arrived since the last call.
  std::string received() {
    std::string all;
    char part[4096];
    for (ssize_t n; (n = ::read(master_, part, sizeof part)) > 0;)
      all.append(part, static_cast<std::size_t>(n));
    return all;
  }
  /// Of the till's side; the master shows it.
  speed_t speed() const {
    termios settings{};
    tcgetattr(master_, &settings);
    return cfgetospeed(&settings);
  }
  void unplug() {
    if (master_ >= 0) ::close(master_);
    master_ = -1;
  }

 private:
  int master_;
  std::string path_;
};
