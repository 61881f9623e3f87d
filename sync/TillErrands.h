#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

#include "sync/BillCalls.h"

class Connection;

/// What a till of a shop does for the others, whoever sits before it: it says what it holds, gives
/// up a held bill that another till wants, takes in what was given up to it, and follows what came
/// back elsewhere of its bills. Each is one transaction in its own file, once however often it is
/// asked for.
class TillErrands {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  /// A till that holds a bill asks so often whether somebody wants it; one that holds none, as
  /// often as it is heard of anyway.
  static constexpr std::chrono::milliseconds kBetweenLooks{200};
  static constexpr std::chrono::seconds kHeartbeat{3};

  /// Connection and line outlive the errands. The till belongs to a shop.
  TillErrands(Connection& connection, ServerLine& line, int till)
      : connection_(connection), calls_(line, till) {}

  /// What is due at that moment. True when something was done, which may be to be brought now.
  /// Throws StoreError.
  bool step(Moment now = std::chrono::steady_clock::now());

 private:
  bool runErrands(BillCalls& calls);
  bool followReturns(BillCalls& calls);

  Connection& connection_;
  ShopCalls calls_;
  Moment looked_, beaten_;
  std::vector<std::int64_t> told_;  ///< what the server was told to be held here
};
