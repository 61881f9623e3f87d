#pragma once

#include "shell/KeyDrivenDialog.h"

class PosSetLists;
class QWidget;
class posMod;

/// The devices of this till: receipt printer, drawer, display, mouse pointer. "确定" saves what is
/// chosen and shows or hides the pointer; the sale screen takes the rest over when it opens next.
/// "测试" tries the devices with what is chosen and saves nothing.
class frmPosSet : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmPosSet(posMod& pos, QWidget* parent = nullptr);

 private:
  QWidget* buttons();
  void save();

  posMod& pos_;
  PosSetLists* lists_;
};
