#pragma once

#include "shell/KeyDrivenDialog.h"

class ClsDayStat;
class DayModel;
class QLabel;
class QTableView;
class posMod;

/// The logged-in operator's bills of today, their sums, and the hand-over sheet of the shift.
class frmCount : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// Needs an operator logged in.
  explicit frmCount(posMod& pos, QWidget* parent = nullptr);

  /// Fills the form and shows it modally; returns when it has been closed.
  void init();

 private:
  void build();
  void show(const ClsDayStat& day);
  void printSheet();

  posMod& pos_;
  DayModel* model_;
  QLabel* Label1_;
  QTableView* listSell_;
  QLabel* lblMsg_;
};
