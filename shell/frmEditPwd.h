#pragma once

#include "shell/KeyDrivenDialog.h"

class posMod;

/// An operator changes his own password: his number, the old password, the new one. Needs nobody
/// logged in; after a change nobody is.
class frmEditPwd : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmEditPwd(posMod& pos, QWidget* parent = nullptr);

 private:
  void change();
  QString store();

  posMod& pos_;
  QLineEdit* txtNumber_;
  QLineEdit* txtPassword_;
  QLineEdit* txtNewPwd_;
};
