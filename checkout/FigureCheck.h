#pragma once

#include <QCoreApplication>
#include <QString>

#include "base/Currency.h"

class ClsSell;
class ClsSysParam;
class Messages;

/// Figures that are most likely a slip of the fingers, or a barcode that was scanned into a field.
/// Where the shop wants it (parameter CheckPayment) the cashier is asked once whether such a figure
/// is meant, with No preselected. Each check gives whether to go on.
class FigureCheck {
  Q_DECLARE_TR_FUNCTIONS(FigureCheck)

 public:
  FigureCheck(const ClsSysParam& rules, Messages& screen);

  /// A price typed for goods that have none.
  [[nodiscard]] bool price(const QString& typed, Currency price) const;
  /// Of a line: above 1 the goods become dearer.
  [[nodiscard]] bool discount(Discount factor) const;
  /// The bill as it is about to be paid, and the cash as it was typed. The bill's figures fit (see
  /// ClsSell::FiguresFit).
  [[nodiscard]] bool payment(const ClsSell& bill, const QString& cash) const;

 private:
  bool isMeant(const QString& question) const;

  const ClsSysParam& rules_;
  Messages& screen_;
};
