#pragma once

#include "shell/KeyDrivenDialog.h"

/// Asks for one text: a missing price, a member's number.
class frmInput : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmInput(const KeyBoard& keys, QWidget* parent = nullptr);
  /// Shows the dialog modally. An empty title or message has the price question's text. Gives what
  /// was typed, or an empty text after Esc or when the window was closed.
  QString init(const QString& title, const QString& message);

 private:
  QLabel* lblTitle_;
  QLabel* lblMsg_;
  QLineEdit* txtPrice_;
};
