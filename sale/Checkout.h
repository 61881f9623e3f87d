#pragma once

#include <QCoreApplication>
#include <memory>
#include <vector>

#include "sale/SalePart.h"

class ClsMember;
class ClsSell;
struct ReceiptFacts;
struct StockOutcome;

/// From the settle key to the next empty bill.
class Checkout : private SalePart {
  Q_DECLARE_TR_FUNCTIONS(Checkout)

 public:
  explicit Checkout(const SalePart& part) : SalePart(part) {}

  /// Takes payment for the open bill, stores it and credits the member in one transaction, prints,
  /// opens the next bill. A bill that cannot be stored is dropped and its stock put back; nothing
  /// is printed for it then, and a stored-value charge stays, which is told with the card's number.
  /// Takes no payment into a data file that has been deleted, replaced or linked since its opening:
  /// asks until it is back, or ends the program.
  void SettleBill();
  /// Adds the current line to the bill and prints it.
  void commitLine();
  /// Empties the screen and opens the next bill. While the data file takes no bill it asks whether
  /// to try again; after a No the program ends, and there is no bill. Ends the program when the
  /// clock is behind the previous bill.
  void PrepareNextBill();
  /// Tells of the bill before, and of its change on the display; ends the program when the clock is
  /// behind that bill. For a bill that has just begun.
  void followLastBill();
  /// What a bill cannot be opened for, when its operator was removed.
  QString operatorGone() const;
  /// Tells of goods whose stock could not be put back.
  void tell(const std::vector<StockOutcome>& refusals);

 private:
  bool canStore();
  bool takePayment(Permit& favour);
  void dropUnstored();
  void withdrawDropped();
  std::shared_ptr<ClsSell> openNextBill();
  ReceiptFacts facts(std::shared_ptr<const ClsMember> member) const;

  /// Paid, but could not be stored; still in the data file until it can be voided there. Nothing is
  /// stored before that, so that the bill is not both completed at the next opening and entered
  /// again.
  std::unique_ptr<ClsSell> dropped_;
};
