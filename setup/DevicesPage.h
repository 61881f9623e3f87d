#pragma once

#include "setup/SetupPage.h"

class PosSetLists;
class posMod;

/// Printer, drawer, display and pointer of this till, with their trial.
class DevicesPage : public SetupPage {
  Q_OBJECT

 public:
  DevicesPage(SetupAnswers& answers, const posMod& pos);
  QString title() const override { return tr("打印机、钱箱和客显"); }
  QString take() override;

 private:
  PosSetLists* lists_;
};
