#pragma once

#include "setup/SetupPage.h"

/// What the shop has on or off.
class RulesPage : public SetupPage {
  Q_OBJECT

 public:
  explicit RulesPage(SetupAnswers& answers);
  QString title() const override { return tr("收款和备份"); }
  QString take() override;

 private:
  std::vector<QComboBox*> switches_;  ///< in the order of the questions
};
