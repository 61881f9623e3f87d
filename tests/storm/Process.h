#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

/// Kills those of all processes whose program is called that ("": whatever it is called) and was
/// started with words that contain the text; returns when there are none left.
void killProcesses(const std::string& name, const std::string& text);

/// A program that runs beside this one, and is killed with this object at the latest.
class Process {
 public:
  /// Throws std::runtime_error when it cannot be started.
  explicit Process(const std::vector<std::string>& words);
  ~Process() { kill(); }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  void kill();
  /// Whether it has ended by itself.
  bool hasEnded();

 private:
  pid_t id_ = -1;
};
