#pragma once

#include "shell/KeyDrivenDialog.h"

class posMod;

/// Who is at the till: operator number and password.
class frmLogin : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmLogin(posMod& pos, QWidget* parent = nullptr);

  /// Result codes of goLogin.
  enum Result { kAccepted = 0, kFailed = 2, kCancelled = 3 };
  /// Shows the dialog modally, its fields empty, and returns how it ended; closing the window keeps
  /// the last code, also that of an earlier login. The operator becomes pos.gOperator only when the
  /// right to sell was found.
  int goLogin();

 private:
  void check();
  void cancel() override;

  posMod& pos_;
  int result_ = kAccepted;
  QLineEdit* txtNumber_;
  QLineEdit* txtPassword_;
};
