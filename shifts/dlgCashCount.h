#pragma once

#include <array>
#include <optional>

#include "saleslib/ShiftBooks.h"
#include "shell/KeyDrivenDialog.h"

/// Asks what is in the drawer, by notes and coins; the sum follows what is typed, and nothing tells
/// what should be there.
class dlgCashCount : public KeyDrivenDialog {
  Q_OBJECT

 public:
  dlgCashCount(const KeyBoard& keys, QWidget* parent);

  /// What was counted; an empty field is nothing.
  const CashCount& counted() const { return counted_; }

 private:
  void arrange(QPushButton* cmdOk, QPushButton* cmdCancel);
  std::optional<CashCount> typed() const;
  void showSum();
  void check();

  CashCount counted_;
  std::array<QLineEdit*, kCashPieces.size()> pieces_{};
  QLabel* lblSum_;
};
