#pragma once

class CustomerDisplay;
class LineReceipt;
class posMod;
class SaleScreen;
struct SaleState;

/// From the settle key to the next empty bill.
class Checkout {
 public:
  Checkout(posMod& pos, SaleState& state, SaleScreen& screen, CustomerDisplay& display,
           LineReceipt& receipt);

  /// Takes payment for the open bill, stores it, credits the member, prints, opens the next bill.
  void SettleBill();
  /// Empties the screen and opens the next bill. Ends the program when the clock is behind the
  /// previous bill.
  void PrepareNextBill();
  /// Prints the receipt of lastBill on the page printer. A printer that fails is reported once.
  void printOurP();
  /// Shows the member attached to the bill, or nobody.
  void ShowMemberInfo();

 private:
  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  CustomerDisplay& display_;
  LineReceipt& receipt_;
};
