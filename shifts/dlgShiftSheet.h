#pragma once

#include "saleslib/ShiftBooks.h"
#include "shell/KeyDrivenDialog.h"

class ClsSysParam;
class QGridLayout;

/// Shows the figures of a shift.
class dlgShiftSheet : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// What may be done next: print it; close the shift, or count once more.
  enum class Purpose { kPrint, kClose };
  static constexpr int kCountAgain = 2;  ///< what exec() gives beside Accepted and Rejected

  dlgShiftSheet(const KeyBoard& keys, const ClsSysParam& shop, const Shift& shift, Purpose purpose,
                QWidget* parent);

 private:
  void addTakings(QGridLayout& grid, const Shift& shift, const ClsSysParam& shop);
  void addDeeds(QGridLayout& grid, const ShiftDeeds& deeds);
  void addDrawer(QGridLayout& grid, const Shift& shift, bool isCounted);
  void addRow(QGridLayout& grid, const char* name, const QString& caption, const QString& count,
              const QString& amount);
  void addRow(QGridLayout& grid, const char* name, const QString& caption, const QString& count,
              Currency amount);
  void addSum(QGridLayout& grid, const char* name, const QString& caption, const ShiftSum& sum);
};
