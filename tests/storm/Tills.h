#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "storm/Process.h"

class InstalledTill;

/// One till of a storm with the program that brings its facts to the server, both started and
/// killed from outside. It sells by the sale library, or as it is installed, by keys.
class StormTill {
 public:
  /// Its files go there.
  StormTill(int number, bool byKeys, const std::filesystem::path& folder);
  ~StormTill();
  StormTill(const StormTill&) = delete;
  StormTill& operator=(const StormTill&) = delete;

  int number() const { return number_; }
  std::string name() const { return "till " + std::to_string(number_); }
  const std::string& file() const { return file_; }
  /// Of the data file.
  const std::string& password() const { return password_; }
  /// What customers were shown, a file for each history of the till.
  const std::vector<std::string>& shown() const { return shown_; }

  void start(unsigned seed);
  void startSync();
  /// Throws std::runtime_error when it had ended by itself.
  void kill();
  /// The installed till starts another one itself.
  void killSync();
  void requireSync();
  /// What a till does at its start, and nothing more.
  void begin() const;

  /// Its data file is copied, as it is then after a start; putBack has it be that copy. Till and
  /// tillsync are not running.
  void copy() const;
  void putBack();

 private:
  int number_;
  std::unique_ptr<InstalledTill> installed_;
  std::string folder_, file_, password_;
  std::vector<std::string> shown_;
  std::unique_ptr<Process> program_, sync_;
};
