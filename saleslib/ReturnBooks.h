#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsUnSell.h"
#include "saleslib/Export.h"

class Connection;

/// The books of returns, kept by one operator: goods that come back against a settled bill. A
/// broken store throws StoreError.
class TESSALY_API ReturnBooks {
 public:
  /// The connection outlives the books. There is an operator (ensure).
  ReturnBooks(Connection& connection, Clock clock, std::shared_ptr<const ClsOperator> taker);

  struct Found {
    enum Kind { kSettled, kOpen, kUnknown, kDamaged, kElsewhere };
    Kind kind = kUnknown;
    std::shared_ptr<ClsSell> bill = {};  ///< a settled one, with its lines; else none
    std::string damage = {};             ///< for people
    int till = 0;                        ///< of a bill that is another till's (kElsewhere)
  };
  /// The stored bill of that number, which is more than 0 (ensure).
  [[nodiscard]] Found find(std::int32_t billNo) const;
  /// Who sold; without a name when that operator was removed.
  ClsOperator cashierOf(const ClsSell& bill) const;
  /// Empty without a member, or when the member is gone.
  ClsMember memberOf(const ClsSell& bill) const;
  /// What came back of that line before.
  std::vector<ClsUnSell::Earlier> earlier(const ClsSellItem& line) const;

  struct Outcome {
    enum Kind { kDone, kNothingHeld, kRefused };
    Kind kind = kDone;
    std::string why = {};  ///< the stock refuses, for people
  };
  /// Takes that much of a line of the bill (ensure) back for that refund: return record, stock,
  /// line, bill and member, in one transaction. The record is limited to what the line still holds,
  /// and everything else follows the record. When it is refused or fails, nothing is written, but
  /// bill and line at hand may have been changed: what counts is what find gives.
  [[nodiscard]] Outcome takeBack(ClsSell& bill, ClsSellItem& line, double quantity,
                                 Currency refund);

 private:
  Found missing(std::int32_t billNo) const;
  ClsUnSell record(const ClsSell& bill, const ClsSellItem& line, double quantity, Currency refund);

  Connection& connection_;
  Clock clock_;
  std::shared_ptr<const ClsOperator> taker_;
};
