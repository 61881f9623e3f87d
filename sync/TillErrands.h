#pragma once

#include <chrono>
#include <cstdint>
#include <string>
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
  /// So often it looks whether the till put a bill aside or took one up.
  static constexpr std::chrono::milliseconds kBetweenLooks{200};
  /// The server calls a till whose bill somebody wants; so often it is asked all the same.
  static constexpr std::chrono::seconds kHeartbeat{3};

  /// Connection and line outlive the errands. The till belongs to a shop.
  TillErrands(Connection& connection, ServerLine& line, int till);

  /// What is due at that moment. True when something was done, which may be to be brought now.
  /// Throws StoreError.
  bool step(Moment now = std::chrono::steady_clock::now());
  /// What of it could not be done when that was last tried; the others are done all the same.
  const std::string& fault() const { return fault_; }

 private:
  bool tellHeld(BillCalls& calls, const std::vector<std::int64_t>& held);
  bool runErrands(BillCalls& calls);
  bool followReturns(BillCalls& calls);
  template <class Errand>
  bool did(const Errand& errand);

  Connection& connection_;
  ShopCalls calls_;
  Moment looked_, beaten_;
  std::vector<std::int64_t> told_;  ///< what the server was told to be held here
  std::string fault_;
};
