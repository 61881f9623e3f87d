#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

#include "base/DateTime.h"
#include "saleslib/SyncState.h"

struct DataSource;

/// The program beside a till of a shop with a server, which brings there what happens (sync/): it
/// is started, and started again when it ends. Nothing waits for it. When the till ends, however
/// that happens, it brings what is left and ends too.
class SyncProgram {
  Q_DECLARE_TR_FUNCTIONS(SyncProgram)

 public:
  SyncProgram(std::filesystem::path program, const DataSource& file);
  ~SyncProgram();
  SyncProgram(const SyncProgram&) = delete;
  SyncProgram& operator=(const SyncProgram&) = delete;

  /// For a screen: empty while the server answers, else for how long it has not and how many bills
  /// it lacks, or why it and this till do not come together.
  QString stateText(const DateTime& now) const;

 private:
  void look();
  void start();

  std::filesystem::path program_;
  std::filesystem::path file_;
  std::string password_;
  std::optional<SyncState> state_;  ///< as last looked at
  int process_ = -1;
  int life_ = -1;  ///< its standard input's other end, which ends with the till
  QTimer timer_;
};
