#pragma once

#include <array>
#include <cstdint>

#include "base/Currency.h"
#include "saleslib/Export.h"
#include "saleslib/Tenders.h"

class Connection;

/// How many there were, and what they came to.
struct ShiftSum {
  std::int64_t count = 0;
  Currency amount;

  void add(Currency money) {
    ++count;
    amount += money;
  }
  bool operator==(const ShiftSum&) const = default;
};

/// What was taken and given while a shift was open.
struct TESSALY_API ShiftTakings {
  ShiftSum bills;                           ///< with what was due when they were paid
  std::array<ShiftSum, kTenders> tendered;  ///< of it; cash without the change
  ShiftSum topUps;                          ///< of stored-value cards, paid in cash
  ShiftSum refunds;                         ///< of goods taken back, in cash
  ShiftSum cashIn, cashOut;                 ///< of the drawer, beside sales; both above 0

  const ShiftSum& of(Tender tender) const { return tendered[static_cast<std::size_t>(tender)]; }
  /// What they leave in the drawer beside the float. Throws Overflow.
  Currency cash() const;
  bool operator==(const ShiftTakings&) const = default;

  /// Calls `taker` with each sum's name, which is stored, and the sum.
  template <class Takings, class Taker>
  static void each(Takings& takings, const Taker& taker) {
    taker("bills", takings.bills);
    for (const TenderKind& kind : tenderKinds())
      taker(kind.column, takings.tendered[static_cast<std::size_t>(kind.tender)]);
    taker("top_ups", takings.topUps);
    taker("refunds", takings.refunds);
    taker("cash_in", takings.cashIn);
    taker("cash_out", takings.cashOut);
  }
};

/// Added up from the books. Throws StoreError, and Overflow for sums that do not fit.
TESSALY_API ShiftTakings takingsOfShift(Connection& connection, std::int64_t shift);
/// As they were stored when the shift was closed; nothing but zeros of an open one. Throws
/// StoreError.
TESSALY_API ShiftTakings closedTakings(Connection& connection, std::int64_t shift);
