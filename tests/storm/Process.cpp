#include "storm/Process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string firstLineOf(const fs::path& file) {
  std::ifstream open(file);
  std::string line;
  std::getline(open, line);
  return line;
}

/// Of a process that has not ended.
bool isCalled(const fs::path& process, const std::string& name, const std::string& text) {
  return firstLineOf(process / "cmdline").find(text) != std::string::npos &&
         (name.empty() || firstLineOf(process / "comm") == name);
}

}  // namespace

void killProcesses(const std::string& name, const std::string& text) {
  for (bool found = true; found;) {
    found = false;
    for (const auto& process : fs::directory_iterator("/proc")) {
      if (!isCalled(process.path(), name, text)) continue;
      found = true;
      ::kill(std::stoi(process.path().filename().string()), SIGKILL);
    }
  }
}

Process::Process(const std::vector<std::string>& words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files{};
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const int code = posix_spawn(&id_, arguments.front(), &files, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  if (code != 0) throw std::runtime_error("cannot start " + words.front());
}

void Process::kill() {
  if (id_ <= 0) return;
  ::kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
  id_ = -1;
}

bool Process::hasEnded() {
  if (id_ > 0 && waitpid(id_, nullptr, WNOHANG) == id_) id_ = -1;
  return id_ <= 0;
}
