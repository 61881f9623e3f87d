#pragma once

#include <cstdint>
#include <string>

#include "saleslib/BillAuthority.h"

class Connection;

/// A return that the shop's server is asked about. The question is stored before it goes out and
/// goes in the transaction that takes the goods back, so that whatever ends the program leaves
/// either a stored return or a question that is known to be given up. Throws StoreError.
class SharedReturn {
 public:
  /// Both outlive it. `isOwn`: the bill is in the till's own file. `mayGoUnanswered`: the owner
  /// lets goods of the till's own bills come back while the server does not answer.
  SharedReturn(Connection& connection, BillAuthority& shop, bool isOwn, bool mayGoUnanswered)
      : connection_(connection), shop_(shop), isOwn_(isOwn), mayGoUnanswered_(mayGoUnanswered) {}

  /// Whether so much of the line may come back (kDone). Then take or giveUp follows.
  [[nodiscard]] BillAuthority::ReturnAnswer ask(std::int64_t bill, std::int64_t line,
                                                double quantity);
  const std::string& key() const { return wanted_.key; }
  /// Within the transaction that takes the goods back (ensure).
  void take();
  /// What was asked for is not done.
  void giveUp();
  /// Gives up each return that was asked for and not stored by an earlier run of the program.
  static void giveUpUnfinished(Connection& connection);

 private:
  bool needsNoAnswer() const;
  static void giveUp(Connection& connection, const BillAuthority::Return& wanted);

  Connection& connection_;
  BillAuthority& shop_;
  bool isOwn_, mayGoUnanswered_;
  BillAuthority::Return wanted_;
};
