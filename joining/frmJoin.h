#pragma once

#include "goodsin/LongWork.h"
#include "saleslib/ShopLink.h"
#include "server/Joining.h"
#include "shell/KeyDrivenDialog.h"

class posMod;

/// The till joins a shop with a server: its owner types where the server is and the code that it
/// gave. From then on the till brings there what happens, without being started anew. Needs
/// somebody logged in, with the right for settings.
class frmJoin : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmJoin(posMod& pos, QWidget* parent = nullptr);

 private:
  void join();
  /// An empty text, or why it did not come about.
  QString refusal();
  void work(bool begins);
  void reject() override;

  posMod& pos_;
  LongWork work_;
  QLineEdit* txtServer_;
  QLineEdit* txtCode_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
  QLabel* lblState_;
};
