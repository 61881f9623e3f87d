#pragma once

#include <QString>

#include "base/DateTime.h"
#include "setup/SetupPage.h"

class ReceiptPreview;

/// The shop's name, the receipt's texts and the rounding, with a receipt that follows what is
/// typed.
class ReceiptPage : public SetupPage {
  Q_OBJECT

 public:
  ReceiptPage(SetupAnswers& answers, const Clock& clock);
  QString title() const override { return tr("店名和小票"); }
  void enter() override { show(); }
  QString take() override;

 private:
  void store();
  void show();

  std::vector<QLineEdit*> texts_;  ///< named as their parameters
  QComboBox* cobRounding_;
  ReceiptPreview* preview_;
};
