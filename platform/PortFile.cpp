#include "platform/PortFile.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "base/SystemFault.h"
#include "platform/PortError.h"
#include "platform/QtText.h"

namespace {

using std::chrono::milliseconds;

/// Keeps a reader that goes away from killing the program by SIGPIPE; the write fails with EPIPE.
class PipeSignalHeld {
 public:
  PipeSignalHeld() {
    sigemptyset(&pipeSignal_);
    sigaddset(&pipeSignal_, SIGPIPE);
    sigset_t pending;
    sigpending(&pending);
    wasPending_ = sigismember(&pending, SIGPIPE) == 1;
    pthread_sigmask(SIG_BLOCK, &pipeSignal_, &before_);
  }
  ~PipeSignalHeld() {
    const timespec atOnce{};
    if (!wasPending_) sigtimedwait(&pipeSignal_, nullptr, &atOnce);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  PipeSignalHeld(const PipeSignalHeld&) = delete;
  PipeSignalHeld& operator=(const PipeSignalHeld&) = delete;

 private:
  sigset_t pipeSignal_;
  sigset_t before_;
  bool wasPending_ = false;
};

/// One opening of the port, with the time that is left for it.
class OpenPort {
 public:
  OpenPort(const std::string& path, milliseconds limit)
      : deadline_(std::chrono::steady_clock::now() + limit) {
    // A device's name that is missing stays missing: a plain file in its place would swallow all
    // receipts, and keep the device from coming back.
    const int create = path.starts_with("/dev/") ? 0 : O_CREAT;
    const int flags = O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    descriptor_ = ::open(path.c_str(), flags | create, 0600);
    if (descriptor_ < 0) throw std::system_error(errno, std::generic_category());
    if (isatty(descriptor_) == 1) makeRaw();
  }
  ~OpenPort() { ::close(descriptor_); }
  OpenPort(const OpenPort&) = delete;
  OpenPort& operator=(const OpenPort&) = delete;

  void write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written >= 0) {
        bytes.remove_prefix(static_cast<std::size_t>(written));
      } else if (errno == EAGAIN) {
        waitUntilWritable();
      } else if (errno != EINTR) {
        throw std::system_error(errno, std::generic_category());
      }
    }
  }

  /// Waits until the device has taken what the system still holds: closing a USB printer throws
  /// that away, and closing a serial line that is stopped would wait for half a minute.
  void drain() {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0 || !S_ISCHR(status.st_mode)) return;
    if (isatty(descriptor_) == 1) {
      drainTerminal();
    } else {
      waitUntilWritable();
    }
  }

 private:
  /// No byte is translated (LF to CR LF) and no line waits for a carrier.
  void makeRaw() {
    termios settings{};
    if (tcgetattr(descriptor_, &settings) != 0) return;
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL;
    tcsetattr(descriptor_, TCSANOW, &settings);
  }

  void drainTerminal() {
    int waiting = 0;
    while (ioctl(descriptor_, TIOCOUTQ, &waiting) == 0 && waiting > 0) {
      if (timeLeft() == milliseconds::zero()) giveUp();
      ::poll(nullptr, 0, 5);
    }
  }

  void waitUntilWritable() {
    pollfd request{descriptor_, POLLOUT, 0};
    const milliseconds left = timeLeft();
    const bool isTimeLeft = left > milliseconds::zero();
    if (!isTimeLeft || ::poll(&request, 1, static_cast<int>(left.count())) == 0) giveUp();
  }

  /// Drops what a terminal holds, because closing would wait for it.
  [[noreturn]] void giveUp() {
    tcflush(descriptor_, TCOFLUSH);
    throw std::system_error(ETIMEDOUT, std::generic_category());
  }

  milliseconds timeLeft() const {
    const auto left = deadline_ - std::chrono::steady_clock::now();
    return std::max(milliseconds::zero(), std::chrono::ceil<milliseconds>(left));
  }

  std::chrono::steady_clock::time_point deadline_;
  int descriptor_ = -1;
};

}  // namespace

PortFile::PortFile(std::string name, std::string path, milliseconds limit)
    : name_(std::move(name)), path_(std::move(path)), limit_(limit) {}

void PortFile::send(std::string_view bytes) {
  const PipeSignalHeld held;
  const char* failed = QT_TRANSLATE_NOOP("PortError", "端口 %1 打不开：%2");
  try {
    OpenPort port(path_, limit_);
    failed = QT_TRANSLATE_NOOP("PortError", "端口 %1 写不进：%2");
    port.write(bytes);
    port.drain();
  } catch (const std::system_error& error) {
    const std::string why = deviceFault(error.code().value(), path_);
    throw PortError(PortError::tr(failed).arg(qtText(name_), qtText(why)));
  }
}
