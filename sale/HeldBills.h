#pragma once

#include <QCoreApplication>
#include <memory>

class Checkout;
class ClsSell;
class Devices;
class LineReceipt;
class MemberCard;
class posMod;
class SaleScreen;
struct SaleState;

/// Puts the open bill aside and takes it up again. A bill put aside stays open in the data file
/// with its rows, and its goods stay out of stock: after a power cut the next start voids it like
/// any other open bill. Both ways are one transaction; when it fails, the reason is shown and the
/// bill stays where it was.
class HeldBills {
  Q_DECLARE_TR_FUNCTIONS(HeldBills)

 public:
  HeldBills(posMod& pos, SaleState& state, SaleScreen& screen, Checkout& checkout,
            MemberCard& memberCard, Devices& devices, LineReceipt& receipt);

  /// Adds the open bill, its current line included, to the held bills, and opens the next one.
  void SuspendBill();
  /// Lets the cashier choose one of the held bills and goes on with it instead of the empty bill on
  /// the screen, which is dropped. Its stock goes back and is taken again line by line; a line
  /// whose stock is refused now leaves the bill, and the cashier is told.
  void RecallBill();

 private:
  struct Recalled;

  std::shared_ptr<ClsSell> putAside();
  Recalled takeUp(const ClsSell& held);
  void putBackStock(const ClsSell& held);
  void takeAgain(Recalled& recalled);
  void show(Recalled recalled);
  void printAgain();

  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  Checkout& checkout_;
  MemberCard& memberCard_;
  Devices& devices_;
  LineReceipt& receipt_;
};
