#pragma once

#include <QCoreApplication>
#include <QString>
#include <memory>

#include "sale/ItemLookup.h"
#include "sale/SalePart.h"

class Checkout;
struct StockOutcome;

/// Bill lines and totals: what Enter does, and how lines are rung, changed and removed. That the
/// figures fit is known before the books are written; a failure is shown and the sale goes on.
class BillLines : private SalePart {
  Q_DECLARE_TR_FUNCTIONS(BillLines)

 public:
  BillLines(const SalePart& part, Checkout& checkout);

  /// The mapped Enter key on the input line.
  void Enter();
  /// A quick key's item code, as if it were typed on the entry row and confirmed.
  void EnterQuickKey(const QString& itemCode);
  /// Voids the open bill and the current line, and prepares the next bill. False when that was not
  /// allowed: everything is as it was, what stands in the input line too.
  [[nodiscard]] bool CancelBill();
  /// Says why there is nothing to delete when there is no current line. False as for CancelBill.
  [[nodiscard]] bool DeleteCurrentLine();

 private:
  void enterGoods(const QString& typed);
  bool ring(std::shared_ptr<ClsSellItem> line);
  void change(ClsSellItem changed, const QString& typed, const QString& refused);
  void dropWhileEditing(const QString& code);
  [[nodiscard]] bool voidBill();
  void notFound(const QString& code);
  void changeQuantity(const QString& typed);
  void changeDiscount(const QString& typed);
  bool correct(ClsSellItem changed);
  QString statusWith(const ClsSellItem& line) const;
  void tell(const QString& status);
  void warn(const StockOutcome& stock);

  ItemLookup lookup_;
  Checkout& checkout_;
};
