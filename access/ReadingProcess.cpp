#include "access/ReadingProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <exception>
#include <string>

#include "base/Failure.h"
#include "base/SystemFault.h"
#include "base/Text.h"
#include "base/Words.h"

namespace {

constexpr int kLongestSilenceMs = 60'000;
constexpr std::uint32_t kLongestMessage = 1U << 28;
constexpr const char* kDamaged = Words::mark(
    "Access 文件已损坏，或者加了密，读不下去了。请先用 Access "
    "打开它，压缩和修复，去掉密码后另存一份。");

enum class Kind : char { kMessage, kFailure, kEnd };

/// What stands before each message.
struct Head {
  Kind kind;
  std::uint32_t length;
};

void writeWhole(int pipe, const char* bytes, std::size_t count) {
  while (count > 0) {
    const ssize_t written = write(pipe, bytes, count);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) _exit(1);
    bytes += written;
    count -= static_cast<std::size_t>(written);
  }
}

void writeMessage(int pipe, Kind kind, std::string_view text) {
  const Head head{kind, static_cast<std::uint32_t>(text.size())};
  writeWhole(pipe, reinterpret_cast<const char*>(&head), sizeof head);
  writeWhole(pipe, text.data(), text.size());
}

// The data file of the shop is open in this process too: a library gone astray must not reach it.
void keepOnly(int pipe) {
  const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, standard);
  if (pipe > STDERR_FILENO + 1) close_range(STDERR_FILENO + 1, static_cast<unsigned>(pipe) - 1, 0);
  close_range(static_cast<unsigned>(pipe) + 1, ~0U, 0);
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
}

[[noreturn]] void workAndExit(int pipe, const std::function<void(const Outbox&)>& work) {
  keepOnly(pipe);
  try {
    work(Outbox(pipe));
    writeMessage(pipe, Kind::kEnd, {});
  } catch (const Failure& failure) {
    writeMessage(pipe, Kind::kFailure, failure.what());
  } catch (const std::exception&) {
    writeMessage(pipe, Kind::kFailure, Words::tr(kDamaged));
  }
  _exit(0);
}

/// The child's end of life, whatever happens here.
class Child {
 public:
  Child(pid_t process, int pipe) : process_(process), pipe_(pipe) {}
  ~Child() {
    close(pipe_);
    kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  Head head() {
    Head head{};
    fill(reinterpret_cast<char*>(&head), sizeof head);
    if (head.length > kLongestMessage) throw Failure(Words::tr(kDamaged));
    return head;
  }
  void fill(char* bytes, std::size_t count);

 private:
  pid_t process_;
  int pipe_;
};

void Child::fill(char* bytes, std::size_t count) {
  while (count > 0) {
    pollfd waiting{pipe_, POLLIN, 0};
    const int ready = poll(&waiting, 1, kLongestSilenceMs);
    if (ready < 0 && errno == EINTR) continue;
    const ssize_t got = ready > 0 ? read(pipe_, bytes, count) : 0;
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) throw Failure(Words::tr(kDamaged));
    bytes += got;
    count -= static_cast<std::size_t>(got);
  }
}

}  // namespace

void Outbox::send(std::string_view message) const {
  if (message.size() > kLongestMessage) throw Failure(Words::tr(kDamaged));
  writeMessage(pipe_, Kind::kMessage, message);
}

void readInChild(const std::function<void(const Outbox&)>& work,
                 const std::function<void(std::string_view)>& take) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw Failure(fileFault(errno));
  const pid_t process = fork();
  if (process == 0) workAndExit(ends[1], work);
  close(ends[1]);
  if (process < 0) {
    close(ends[0]);
    throw Failure(Words::tr("内存不足，打不开 Access 文件。"));
  }
  Child child(process, ends[0]);
  std::string message;
  for (Head head = child.head(); head.kind != Kind::kEnd; head = child.head()) {
    message.resize(head.length);
    child.fill(message.data(), message.size());
    // Its texts name what is in the file, and must not command the owner's terminal.
    if (head.kind == Kind::kFailure)
      throw Failure(hasControlCharacter(message) ? Words::tr(kDamaged) : message);
    if (!message.empty()) take(message);
  }
}
