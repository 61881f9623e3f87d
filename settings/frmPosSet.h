#pragma once

#include <vector>

#include "app/ClsPosSet.h"
#include "shell/KeyDrivenDialog.h"

class QComboBox;
class QGridLayout;
class QWidget;
class posMod;

/// The devices of this till: receipt printer, drawer, display, mouse pointer. "确定" saves what is
/// chosen and shows or hides the pointer; the sale screen takes the rest over when it opens next.
/// "测试" tries the devices with what is chosen and saves nothing. A setting that is none of a
/// list's entries stays as it is until another entry is chosen.
class frmPosSet : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmPosSet(posMod& pos, QWidget* parent = nullptr);

 private:
  /// One line of the dialog: a list and the setting behind it.
  struct Choice;
  static const std::vector<Choice>& choices();

  void addRow(QGridLayout& grid, const Choice& choice);
  QWidget* buttons();
  /// The settings with everything that is chosen.
  ClsPosSet chosen() const;
  void test();
  void save();

  posMod& pos_;
  std::vector<QComboBox*> lists_;  ///< in the order of choices()
};
