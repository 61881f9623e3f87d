#pragma once

#include <QCoreApplication>
#include <memory>

class ClsSell;
class Devices;
class LineReceipt;
class posMod;
class SaleScreen;
struct ReceiptFacts;
struct SaleState;

/// From the settle key to the next empty bill.
class Checkout {
  Q_DECLARE_TR_FUNCTIONS(Checkout)

 public:
  Checkout(posMod& pos, SaleState& state, SaleScreen& screen, Devices& devices,
           LineReceipt& receipt);

  /// Takes payment for the open bill, stores it and credits the member in one transaction, prints,
  /// opens the next bill. A bill that cannot be stored is dropped and its stock put back; nothing
  /// is printed for it then, and a stored-value charge stays, which is told with the card's number.
  /// Takes no payment into a data file that has been deleted, replaced or linked since its opening:
  /// asks until it is back, or ends the program.
  void SettleBill();
  /// Empties the screen and opens the next bill. While the data file takes no bill it asks whether
  /// to try again; after a No the program ends, and there is no curBill. Ends the program when the
  /// clock is behind the previous bill.
  void PrepareNextBill();
  /// The same in two steps, for a caller that opens the next bill in a transaction of its own: a
  /// new bill of the operator, stored at once; and the screen with it. Throws StoreError, also when
  /// the operator was removed.
  [[nodiscard]] std::shared_ptr<ClsSell> openBill();
  void ShowNextBill(std::shared_ptr<ClsSell> next);
  /// Writes number and cashier of the open bill into the second line.
  void ShowBillNo();
  /// Prints the receipt of lastBill on the page printer. A printer that fails is reported once.
  void printOurP();
  /// Shows the member attached to the bill, or nobody.
  void ShowMemberInfo();

 private:
  bool canStore();
  ReceiptFacts receiptFacts() const;
  void commitLine();
  bool takePayment();
  void dropUnstored();
  void withdrawDropped();
  std::shared_ptr<ClsSell> openNextBill();
  void emptyList();
  void printPageReceipts();
  bool showLastBill();

  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  Devices& devices_;
  LineReceipt& receipt_;
  /// Paid, but could not be stored; still in the data file until it can be voided there. Nothing is
  /// stored before that, so that the bill is not both completed at the next opening and entered
  /// again.
  std::shared_ptr<ClsSell> dropped_;
};
