#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "base/DateTime.h"
#include "saleslib/SyncState.h"
#include "store/DataSource.h"
#include "sync/Upload.h"

/// The work of the program beside the till: it brings what happened at the till to the shop's
/// server for as long as it runs, whatever becomes of line, server and data file meanwhile.
class SyncRun {
 public:
  using Milliseconds = std::chrono::milliseconds;
  struct Surroundings {
    /// Waits so long, or shorter.
    std::function<void(Milliseconds)> pause;
    /// Whether nobody sells any more; then it ends as soon as all is brought, or after a minute.
    std::function<bool()> isTillGone;
    /// Told once what is in the way, and once that nothing is any more.
    std::function<void(const std::string&)> tell;
    Clock clock = localTime;
  };

  SyncRun(DataSource file, const SyncPlace& place, Surroundings surroundings);
  ~SyncRun();

  /// Until the till is gone. Throws StoreError when the till belongs to no shop.
  void run();

 private:
  struct Session;

  void begin();
  Upload::Outcome attempt();
  void open();
  /// The server has answered.
  void keepContact();
  void note(Upload::Outcome outcome);
  void tellOnce(const std::string& fault);
  Milliseconds waitAfter(Upload::Outcome outcome);
  bool isOver(Upload::Outcome outcome);

  DataSource file_;
  const SyncPlace& place_;
  Surroundings surroundings_;
  std::unique_ptr<Session> session_;
  SyncState state_;
  std::string fault_, told_;
  Milliseconds wait_;
  int failures_ = 0;
  std::chrono::steady_clock::time_point written_;
  std::chrono::steady_clock::time_point lastMoment_;  ///< to go on without a till
};
