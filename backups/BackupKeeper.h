#pragma once

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <optional>
#include <thread>

#include "backups/BackupRun.h"
#include "base/DateTime.h"

class Connection;

/// Keeps the dated backups of the data file that the sale has open: seven days and four weeks
/// beside it (backups/Generations.h) and, where one is named, on a medium too. Today's is made
/// while the till sells, as soon as there is none, and once more at the end. All of it happens in
/// one thread with a connection of its own, which is there only while it works; nobody waits for
/// it, nor for the medium.
class BackupKeeper {
 public:
  using Seconds = std::chrono::seconds;

  /// Looks after the file of that connection, which outlives this. `medium` is a mounted folder or
  /// empty. The first look is `first` after the making, the others `pause` apart.
  BackupKeeper(Connection& shop, std::filesystem::path medium, Clock clock,
               Seconds first = Seconds(60), Seconds pause = Seconds(600));
  /// Stops a run that goes on. One that the medium holds up is left behind.
  ~BackupKeeper();
  BackupKeeper(const BackupKeeper&) = delete;
  BackupKeeper& operator=(const BackupKeeper&) = delete;

  /// To be called about once a second: starts what is due, takes up what is ready, or is so within
  /// that time. True when the state has changed.
  bool look(std::chrono::milliseconds patience = {});
  /// Today's once more, as at the end of the program; what still runs is given up for it.
  void makeAnew();
  bool isRunning() const { return result_.valid(); }
  /// Ends what runs, within milliseconds unless the medium holds it up; no more is heard of it.
  void stop();

  /// What is known since the last run; before the first, of the backups beside the data file only.
  const BackupResult& state() const { return state_; }
  bool hasMedium() const { return !medium_.empty(); }
  /// The days since the last backup, beside the data file or on the medium, whichever is older; of
  /// those later than today none counts. Nothing when there is none.
  std::optional<int> age() const;
  /// How many days' sales could be lost: the age, or where there is no backup, the days since the
  /// books' first bill, as the making found it.
  int daysAtRisk() const;

 private:
  void start(bool anew);
  bool isDue() const;

  const Connection& shop_;
  std::filesystem::path medium_;
  FileIdentity opened_;
  Clock clock_;
  Date firstDay_;
  Seconds pause_;
  std::chrono::steady_clock::time_point next_;
  BackupResult state_;
  std::shared_ptr<BackupFlags> flags_;
  std::future<BackupResult> result_;  ///< valid while a run goes on
  std::thread thread_;
};
