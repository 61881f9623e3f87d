#pragma once

#include <QCoreApplication>

#include "sale/Sale.h"
#include "sale/SalePart.h"

class Checkout;
class MemberCard;

/// Puts the open bill aside and takes it up again. A bill put aside stays open in the data file
/// with its rows, and its goods stay out of stock: after a power cut the next start voids it like
/// any other open bill, unless the books keep it (BillBooks::keepsHeld). When the books cannot be
/// written, the reason is shown and the bill stays where it was.
class HeldBills : private SalePart {
  Q_DECLARE_TR_FUNCTIONS(HeldBills)

 public:
  HeldBills(const SalePart& part, Checkout& checkout, MemberCard& memberCard)
      : SalePart(part), checkout_(checkout), memberCard_(memberCard) {}

  /// Adds the open bill, its current line included, to the held bills, and opens the next one.
  void SuspendBill();
  /// Lets the cashier choose one of the held bills, in a shop of several tills of any of them, and
  /// goes on with it instead of the empty bill on
  /// the screen, which is dropped. A line whose stock is refused now leaves the bill, and the
  /// cashier is told.
  void RecallBill();

 private:
  std::vector<Sale::Bill> listed();
  void fetch(const ClsSell& elsewhere);
  void takeUp(const ClsSell& held);

  Checkout& checkout_;
  MemberCard& memberCard_;
};
