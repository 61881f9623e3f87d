#pragma once

#include "setup/SetupPage.h"

class FileField;

/// How the shop begins: with the owner's answers, as the demo shop, or with a backup.
class StartPage : public SetupPage {
  Q_OBJECT

 public:
  explicit StartPage(SetupAnswers& answers);
  QString title() const override { return tr("怎样开店"); }
  QString take() override;

 private:
  void show();

  QComboBox* cobFrom_;
  FileField* txtBackup_;
  QLabel* note_;
};
