#pragma once

#include <string>

#include "base/Currency.h"
#include "shell/KeyDrivenDialog.h"

/// Asks for an amount of cash: the float of a new shift, or what is put into the drawer or taken
/// out, with its reason. What cannot be is said in the dialog, which stays.
class dlgCash : public KeyDrivenDialog {
  Q_OBJECT

 public:
  enum class Purpose { kFloat, kIn, kOut };
  dlgCash(const KeyBoard& keys, Purpose purpose, QWidget* parent);

  /// In fen at most; more than 0, a float not less.
  Currency amount() const { return amount_; }
  /// Not empty, but for a float.
  std::string reason() const;

 private:
  void check();
  void refuse(const QString& text, QLineEdit* field);

  Purpose purpose_;
  Currency amount_;
  QLineEdit* txtAmount_;
  QLineEdit* txtReason_ = nullptr;
  QLabel* lblSaid_;
};
