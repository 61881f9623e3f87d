#pragma once

#include <vector>

#include "settings/KeyTable.h"
#include "shell/KeyDrivenDialog.h"

class QScrollArea;
class QWidget;

/// The keys as they are mapped now. It is only read: the mapped Up and Down keys scroll what is
/// longer than the screen, and Esc or Enter leaves.
class frmHelp : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmHelp(const KeyBoard& keys, QWidget* parent = nullptr);

 protected:
  bool handleKey(const QObject* watched, const QKeyEvent& event) override;

 private:
  QWidget* table(const std::vector<KeyGroup>& groups);
  void fitScreen();

  QScrollArea* area_;
};
