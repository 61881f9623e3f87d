#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "saleslib/Export.h"

class Connection;
class ClsSysParam;

/// The books behind a sale screen: bills and the stock that their lines take. Each step is one
/// transaction; a step that is refused or fails has written nothing and left bill and line as they
/// were. A refused movement of stock is an outcome, a broken store throws StoreError.
class TESSALY_API BillBooks {
 public:
  BillBooks(Connection& connection, const ClsSysParam& rules, Clock clock);

  /// A new empty bill of that operator; none when the operator was removed.
  [[nodiscard]] std::shared_ptr<ClsSell> open(std::int32_t operatorId);
  /// Takes the stock of a new line, under the shop's stock rule, and stores the line.
  [[nodiscard]] StockOutcome ring(ClsSellItem& line);
  /// Makes a stored line what `changed`, a copy of it, is by now; the stock follows.
  [[nodiscard]] StockOutcome correct(ClsSellItem& line, ClsSellItem changed);
  /// Puts the stock of a stored line back and deletes the line.
  [[nodiscard]] StockOutcome remove(ClsSellItem& line);
  /// Deletes the bill with its lines and `line`, stored but not yet in the bill, if there is one.
  /// Their stock goes back; what of it is refused is given, and keeps nothing from being deleted.
  [[nodiscard]] std::vector<StockOutcome> cancel(ClsSell& bill, ClsSellItem* line = nullptr);
  /// Stores a bill that is put aside, and opens the operator's next one; none, and nothing is
  /// stored, when the operator was removed.
  [[nodiscard]] std::shared_ptr<ClsSell> hold(ClsSell& bill, std::int32_t operatorId);

  struct Recalled {
    std::shared_ptr<ClsSell> bill;
    std::shared_ptr<ClsMember> member;   ///< of the bill, or none
    std::vector<double> stock;           ///< what each line left, in the order of the bill's lines
    std::vector<StockOutcome> refusals;  ///< of lines that left the bill
  };
  /// Takes a held bill up again in place of an empty one, which is deleted. Its stock goes back and
  /// is taken again line by line, under the shop's rule as it is now. `accept` is shown the bill
  /// before anything is durable, and refuses it by throwing. `held` stays as it is.
  [[nodiscard]] Recalled recall(const ClsSell& held, ClsSell& empty,
                                const std::function<void(const ClsSell&)>& accept);
  /// Deletes a bill without lines.
  void drop(ClsSell& empty);
  /// Cancels what an earlier run of the program left open of that operator.
  [[nodiscard]] std::vector<StockOutcome> cancelOpen(std::int32_t operatorId);

  /// The shop's settled bill with the latest time, without lines; none when there is none.
  std::shared_ptr<ClsSell> lastSettled() const;
  /// The member's latest settled bill with its lines; none when there is none.
  std::shared_ptr<ClsSell> lastPurchase(const ClsMember& member) const;
  /// The data file's path, for messages.
  std::string file() const;

 private:
  StockOutcome take(const ClsSellItem& line, double quantity, std::int16_t rule);
  StockOutcome putBack(const ClsSellItem& line);
  void takeAgain(Recalled& recalled);

  Connection& connection_;
  const ClsSysParam& rules_;
  Clock clock_;
};
