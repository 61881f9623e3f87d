#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "sync/Backlog.h"
#include "sync/ShopCalls.h"

/// Brings the journal's entries to the shop's server, one question at a time. Where to go on says
/// the server, each time: it may have been put back from a copy, and so may the till's own file.
/// Then their histories differ, and the till asks for a new epoch: both histories are kept.
class Upload {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  /// An idle till is heard of as often as this: that is how it learns that the server was put back.
  static constexpr std::chrono::seconds kHeartbeat{3};

  /// Connection and line outlive the upload. The till belongs to a shop (ensure). `atServer` is the
  /// number of the last entry that the server once told to have: until it tells again, what is
  /// still to come is counted from there, and nothing else.
  Upload(Connection& connection, ServerLine& line, std::int64_t atServer = 0);

  enum class Outcome {
    kWent,         ///< the server answered; there may be more to do at once
    kIdle,         ///< nothing to ask now
    kFailed,       ///< no answer, or one to begin anew after
    kRefused,      ///< the server does not take this till, until somebody does something
    kWrongServer,  ///< nor the till the server, whose certificate is not the shop's
  };
  /// The next question, if there is one to be asked at that moment. Throws StoreError.
  Outcome step(Moment now = std::chrono::steady_clock::now());

  /// Why the last question failed or was refused.
  const std::string& fault() const { return fault_; }
  /// Settled bills that the server does not have, as far as it told. Throws StoreError.
  std::int64_t pendingBills() { return backlog_.bills(place_.value_or(known_)); }
  std::int64_t atServer() const { return known_.seq; }

 private:
  Outcome greet(Moment now);
  Outcome send(const std::vector<JournalEntry>& entries, Moment now);
  Outcome beginEpoch();
  Outcome failed(const std::string& fault, const std::string& state);
  Outcome follow(const ShopCalls::Standing& standing, Moment now);
  ShopCalls::Told told();

  Connection& connection_;
  ShopCalls calls_;
  Backlog backlog_;
  int epoch_ = 0;
  std::optional<Place> place_;  ///< none: the server is to be asked first
  Place known_;                 ///< the same when it was last known
  Moment answered_;
  std::string fault_;
};
