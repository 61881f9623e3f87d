#pragma once

#include <vector>

#include "setup/SetupPage.h"
#include "shell/KeyDrivenDialog.h"

class QStackedWidget;
class posMod;

/// The first start: asks, page by page, for what makes a shop, and makes it on the last one. Left
/// before, it leaves nothing. PageDown and PageUp turn the pages too. Accepted when the data file
/// of the till and its settings are there; the till opens them then.
class frmSetup : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// `keys` are those of the settings file, which the till loads later.
  frmSetup(posMod& pos, const KeyBoard& keys, QWidget* parent = nullptr);

 protected:
  void cancel() override;
  bool handleKey(const QObject* watched, const QKeyEvent& event) override;

 private:
  void addPages();
  void layOut();
  /// The pages that are to be answered, for the way that the shop begins.
  std::vector<SetupPage*> path() const;
  void show(SetupPage& page);
  void next();
  void back();
  void make();

  posMod& pos_;
  SetupAnswers answers_;
  std::vector<SetupPage*> pages_;
  SetupPage* page_ = nullptr;  ///< in front
  QStackedWidget* stack_;
  QLabel* lblStep_;
  QPushButton *cmdBack_, *cmdNext_, *cmdCancel_;
};
