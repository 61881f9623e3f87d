#pragma once

#include <QString>

class Checkout;
class CustomerDisplay;
class ItemLookup;
class LineReceipt;
class posMod;
class SaleScreen;
struct SaleState;

/// Bill lines and totals: what Enter does, and how lines are shown, changed and removed while stock
/// and stored rows follow. A line's stock and its row are one transaction.
class BillLines {
 public:
  BillLines(posMod& pos, SaleState& state, SaleScreen& screen, ItemLookup& lookup,
            Checkout& checkout, CustomerDisplay& display, LineReceipt& receipt);

  /// The mapped Enter key on the input line.
  void Enter();
  /// Takes stock for the current line when asked, stores it, writes it into the selected row, shows
  /// price and status line. False when the stock was refused; the line is then dropped.
  bool ShowLine(bool takeStock);
  /// The same without stock, after a change of the current line.
  void RefreshLine();
  /// Moves the selection between the current line's row and the entry row.
  void MoveRow(bool up);
  /// Voids the open bill and the current line, and prepares the next bill.
  void CancelBill();
  void DeleteCurrentLine();

 private:
  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  ItemLookup& lookup_;
  Checkout& checkout_;
  CustomerDisplay& display_;
  LineReceipt& receipt_;
};
