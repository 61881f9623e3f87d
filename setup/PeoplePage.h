#pragma once

#include <array>

#include "setup/SetupPage.h"

/// The owner, who has every right, and, unless left empty, the first cashier, who may sell.
class PeoplePage : public SetupPage {
  Q_OBJECT

 public:
  explicit PeoplePage(SetupAnswers& answers);
  QString title() const override { return tr("店主和收银员"); }
  QString take() override;

 private:
  struct Person {
    QLineEdit *name, *password, *again;
  };
  Person ask(const QString& name, const char* prefix);
  QString refusal(const Person& person);

  std::array<Person, 2> people_;  ///< their numbers are 1 and 2
};
