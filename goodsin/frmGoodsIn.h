#pragma once

#include <optional>

#include "shell/KeyDrivenDialog.h"
#include "shop/GoodsMapping.h"

class QTableWidget;
class posMod;

/// Brings a goods sheet into the shop: its file, what its columns hold as far as that was guessed
/// or remembered, and then its preview (see dlgGoodsPreview). In the list of columns the mapped
/// Enter key says what the column holds; a name keeps that for sheets that come again.
class frmGoodsIn : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmGoodsIn(posMod& pos, QWidget* parent = nullptr);

 private:
  void arrange();
  void completePaths();
  void openFile();
  void showMapping();
  void chooseField(int row);
  void preview();

  posMod& pos_;
  GoodsMapping mapping_;
  QLineEdit* txtFile_;
  QTableWidget* tblMapping_;
  QLineEdit* txtName_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
  QLabel* lblHint_;
};
