#include "driver/TillDriver.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "driver/OffscreenScreen.h"

namespace {

constexpr int kMostTabs = 60;
constexpr int kStandstillMs = 120000;
constexpr auto kTextLimit = std::chrono::seconds(20);

[[noreturn]] void becomeTill(const std::filesystem::path& folder, const std::string& platform,
                             int socket) {
  setenv("QT_QPA_PLATFORM", platform.c_str(), 1);
  setenv("QT_QPA_GENERIC_PLUGINS", ("tilldriver:" + std::to_string(socket)).c_str(), 1);
  setenv("QT_PLUGIN_PATH", DRIVER_PLUGIN_FOLDER, 1);
  const std::string program = (folder / "till").string();
  execl(program.c_str(), program.c_str(), nullptr);
  _exit(127);
}

}  // namespace

TillDriver::TillDriver(const std::filesystem::path& folder, int screenWidth, int screenHeight) {
  const std::string platform = offscreenPlatform(folder, screenWidth, screenHeight);
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) throw std::runtime_error("no socket");
  fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("no process");
  if (process_ == 0) becomeTill(folder, platform, ends[1]);
  ::close(ends[1]);
  socket_ = ends[0];
}

TillDriver::~TillDriver() {
  kill();
  ::close(socket_);
}

void TillDriver::send(const std::string& command) {
  const std::string line = command + "\n";
  if (::send(socket_, line.data(), line.size(), MSG_NOSIGNAL) != ssize_t(line.size())) {
    throw std::runtime_error("the till is gone at: " + command);
  }
}

/// Nothing when the till has gone. Throws when it stands still.
std::optional<std::string> TillDriver::receiveLine() {
  while (received_.find('\n') == std::string::npos) {
    pollfd ready{socket_, POLLIN, 0};
    if (poll(&ready, 1, kStandstillMs) == 0) throw std::runtime_error("the till stands still");
    char bytes[4096];
    const ssize_t got = ::recv(socket_, bytes, sizeof bytes, 0);
    if (got <= 0) return std::nullopt;
    received_.append(bytes, std::size_t(got));
  }
  const std::size_t end = received_.find('\n');
  std::string line = received_.substr(0, end);
  received_.erase(0, end + 1);
  return line;
}

std::string TillDriver::ask(const std::string& command) {
  send(command);
  const std::optional<std::string> answer = receiveLine();
  if (!answer) throw std::runtime_error("the till went away at: " + command);
  if (!answer->starts_with("ok")) throw std::runtime_error(command + ": " + *answer);
  return answer->size() > 3 ? answer->substr(3) : std::string();
}

int TillDriver::monkey(unsigned seed, int events, const std::filesystem::path& words) {
  send("monkey " + std::to_string(seed) + " " + std::to_string(events) + " " + words.string());
  int done = 0;
  while (const std::optional<std::string> line = receiveLine()) {
    if (line->starts_with("error")) throw std::runtime_error("the monkey: " + *line);
    done = std::stoi(line->substr(3));
    if (line->starts_with("ok")) break;
  }
  return done;
}

void TillDriver::key(std::string_view name) {
  ask("key " + std::string(name));
}

void TillDriver::type(std::string_view text) {
  ask("type " + std::string(text));
}

void TillDriver::enter(std::string_view text) {
  type(text);
  key("Return");
}

void TillDriver::tabTo(std::string_view control) {
  for (int presses = 0; ask("focus") != control; ++presses) {
    if (presses == kMostTabs) throw std::runtime_error("Tab never reaches " + std::string(control));
    key("Tab");
    sync();
  }
}

void TillDriver::play(const std::string& script) {
  static const std::map<char, void (TillDriver::*)(std::string_view)> kOthers = {
      {'\'', &TillDriver::type},
      {'=', &TillDriver::enter},
      {'>', &TillDriver::waitFor},
      {'@', &TillDriver::tabTo}};
  std::istringstream words(script);
  for (std::string word; words >> word; sync()) {
    const auto other = kOthers.find(word.front());
    other == kOthers.end() ? key(word) : (this->*other->second)(word.substr(1));
  }
}

void TillDriver::sync() {
  ask("settle");
}

void TillDriver::waitFor(std::string_view window) {
  ask("wait " + std::string(window));
}

void TillDriver::waitForText(std::string_view control, std::string_view part) {
  const auto giveUp = std::chrono::steady_clock::now() + kTextLimit;
  std::string shown;
  do {
    shown = text(control);
    if (shown.find(part) != std::string::npos) return;
  } while (std::chrono::steady_clock::now() < giveUp);
  throw std::runtime_error(std::string(control) + " shows \"" + shown + "\", not \"" +
                           std::string(part) + "\"");
}

std::string TillDriver::activeWindow() {
  return ask("window");
}

std::string TillDriver::text(std::string_view control) {
  return ask("text " + std::string(control));
}

void TillDriver::shot(const std::filesystem::path& file) {
  ask("shot " + file.string());
}

int TillDriver::waitForEnd() {
  int status = 0;
  if (process_ > 0) waitpid(process_, &status, 0);
  process_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void TillDriver::kill() {
  if (process_ <= 0) return;
  ::kill(process_, SIGKILL);
  waitForEnd();
}
