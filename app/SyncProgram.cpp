#include "app/SyncProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "store/DataSource.h"

namespace {

constexpr auto kBetweenLooks = std::chrono::seconds(5);
constexpr int kSilentMinutes = 1;  // what is not worth a word

/// Without a wait; the identity of the process, or -1.
int startWithInput(const std::filesystem::path& program, const std::string& file, int input) {
  std::array<std::string, 4> words = {program.string(), file, "--ask-file-password", "--with-till"};
  std::array<char*, 5> arguments = {words[0].data(), words[1].data(), words[2].data(),
                                    words[3].data(), nullptr};
  posix_spawn_file_actions_t files{};
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
  pid_t process = -1;
  if (posix_spawn(&process, arguments[0], &files, nullptr, arguments.data(), environ) != 0)
    process = -1;
  posix_spawn_file_actions_destroy(&files);
  return process;
}

}  // namespace

SyncProgram::SyncProgram(std::filesystem::path program, const DataSource& file)
    : program_(std::move(program)), file_(file.path), password_(file.password) {
  timer_.callOnTimeout([this] { look(); });
  timer_.start(kBetweenLooks);
  look();
}

SyncProgram::~SyncProgram() {
  if (life_ >= 0) close(life_);
}

void SyncProgram::look() {
  state_ = readSyncState(file_);
  if (process_ > 0 && waitpid(process_, nullptr, WNOHANG) == 0) return;
  start();
}

// The password waits in the pipe, where nobody sees it, before anybody reads it.
void SyncProgram::start() {
  if (life_ >= 0) close(std::exchange(life_, -1));
  process_ = -1;
  std::array<int, 2> pipe{};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) return;
  life_ = pipe[1];
  const std::string line = password_ + "\n";
  if (write(life_, line.data(), line.size()) == static_cast<ssize_t>(line.size()))
    process_ = startWithInput(program_, file_.string(), pipe[0]);
  close(pipe[0]);
}

QString SyncProgram::stateText(const DateTime& now) const {
  if (!state_) return {};
  using enum SyncState::Refusal;
  if (state_->refusal == kTill) return tr("服务器不认这台收银机，请告诉店主");
  if (state_->refusal == kCertificate) return tr("服务器的证书不对，请告诉店主");
  const std::int64_t minutes = secondsBetween(state_->contact, now) / 60;
  if (minutes < kSilentMinutes) return {};
  return tr("离线 %1 分钟，%2 单未上传").arg(minutes).arg(state_->pendingBills);
}
