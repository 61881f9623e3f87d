#pragma once

#include <QCoreApplication>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

class Checkout;
class Devices;
class EditedCell;
class ItemLookup;
class LineReceipt;
class posMod;
class SaleScreen;
struct SaleState;

/// Bill lines and totals: what Enter does, and how lines are shown, changed and removed while stock
/// and stored rows follow. A line's stock and its row are one transaction, and everything that the
/// screen shows of it is worked out before that transaction ends: a line that cannot be stored, or
/// whose figures do not fit, is nowhere. A failure is shown to the cashier and the sale goes on.
class BillLines {
  Q_DECLARE_TR_FUNCTIONS(BillLines)

 public:
  BillLines(posMod& pos, SaleState& state, SaleScreen& screen, EditedCell& cell, ItemLookup& lookup,
            Checkout& checkout, Devices& devices, LineReceipt& receipt);

  /// The mapped Enter key on the input line.
  void Enter();
  /// A quick key's item code, as if it were typed on the entry row and confirmed.
  void EnterQuickKey(const QString& itemCode);
  /// Takes stock for the current line when asked, stores it, writes it into the selected row, shows
  /// it with price and status line. A line whose stock is taken is a new one: an entry row follows
  /// it. False when there is no current line, the stock was refused or the store failed; a line
  /// whose stock was to be taken is then dropped.
  bool ShowLine(bool takeStock);
  /// The same without stock, after a change of the current line.
  bool RefreshLine();
  /// Voids the open bill and the current line, and prepares the next bill.
  void CancelBill();
  /// Says why there is nothing to delete when there is no current line.
  void DeleteCurrentLine();

 private:
  struct Shown;

  void enterGoods(const QString& typed);
  void ringUp();
  void dropWhileEditing(const QString& code);
  void notFound(const QString& code);
  void changeQuantity(const QString& typed);
  void changeDiscount(const QString& typed);
  void returnToEntryRow();
  void numberRows();

  std::optional<Shown> store(double taken);
  void show(Shown shown);
  bool guarded(const std::function<bool()>& work);
  bool moveStock(double taken, const std::function<void()>& write);
  Shown shownLine() const;
  QString statusText(std::int64_t figure) const;

  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  EditedCell& cell_;
  ItemLookup& lookup_;
  Checkout& checkout_;
  Devices& devices_;
  LineReceipt& receipt_;
};
