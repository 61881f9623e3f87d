#pragma once

#include "setup/SetupPage.h"

/// The questions of shop/SetupQuestion.h.
class RulesPage : public SetupPage {
  Q_OBJECT

 public:
  explicit RulesPage(SetupAnswers& answers);
  QString title() const override { return tr("收款和备份"); }
  QString take() override;

 private:
  std::vector<QWidget*> fields_;  ///< lists and lines, in the order of the questions
};
