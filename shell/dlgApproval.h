#pragma once

#include <memory>

#include "saleslib/Permission.h"
#include "shell/KeyDrivenDialog.h"

class posMod;

/// Asks on the spot for somebody who may allow what the operator may not: number and password, or a
/// staff card swiped into the number's field. Refusals are said in the dialog, which stays.
class dlgApproval : public KeyDrivenDialog {
  Q_OBJECT

 public:
  dlgApproval(posMod& pos, const Deed& deed, QWidget* parent);

  /// Shows the dialog modally. Who approves; none when it was given up.
  [[nodiscard]] std::shared_ptr<const ClsOperator> ask();

 private:
  QString question() const;
  void numberEntered();
  void check();
  void say(const QString& text);

  posMod& pos_;
  Deed deed_;
  std::shared_ptr<const ClsOperator> approver_;
  QLineEdit* txtNumber_;
  QLineEdit* txtPassword_;
  QLabel* lblSaid_;
};

/// Whether the operator at the till may do that now, asking for an approval where he may not (see
/// Permission). There is an operator (ensure). Throws StoreError.
[[nodiscard]] Permit askLeave(posMod& pos, QWidget* parent, const Deed& deed);
