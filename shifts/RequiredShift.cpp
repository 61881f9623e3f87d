#include "shifts/RequiredShift.h"

#include "app/posMod.h"
#include "saleslib/ShiftBooks.h"
#include "shifts/dlgCash.h"

bool requireShift(posMod& pos, QWidget* parent) {
  return !pos.gSysParam.Shifts() || isShiftOpen(*pos.gConn) || openShift(pos, parent);
}

bool openShift(posMod& pos, QWidget* parent) {
  dlgCash dialog(pos.gKeyBoard, dlgCash::Purpose::kFloat, parent);
  return dialog.exec() == QDialog::Accepted && pos.shiftBooks().open(dialog.amount());
}
