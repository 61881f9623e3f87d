#pragma once

#include "devices/Devices.h"
#include "saleslib/ShiftBooks.h"
#include "shell/KeyDrivenDialog.h"
#include "shifts/dlgCash.h"
#include "takings/ShiftPaper.h"

class QTableWidget;
class posMod;

/// The shift of the drawer: opening it, cash put in and taken out, reading its figures, counting
/// and closing, and the sheets of closed ones. Shown modally with exec(); a new one per use.
class frmShift : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// Needs somebody logged in.
  explicit frmShift(posMod& pos, QWidget* parent = nullptr);

 private:
  void arrange();
  void lookLikeList();
  void showState();
  void listClosed();
  void attempt(const std::function<void()>& deed);
  void open();
  void move(dlgCash::Purpose purpose);
  void read();
  void closeShift();
  bool count();
  void showClosed();
  void print(const Shift& shift, ShiftPaperKind kind);
  void print(const std::function<ShiftPaper(int columns)>& paper);

  posMod& pos_;
  Devices devices_;
  QPushButton* cmdOpen_;
  QPushButton* cmdIn_;
  QPushButton* cmdOut_;
  QPushButton* cmdRead_;
  QPushButton* cmdClose_;
  QTableWidget* listClosed_;
  QPushButton* cmdExit_;
  QLabel* lblState_;
};
