#pragma once

#include <optional>

#include "goodsin/GoodsTarget.h"
#include "shell/KeyDrivenDialog.h"

class QTableWidget;
class posMod;

/// Brings a goods sheet into a shop: its file, what its columns hold as far as that was guessed
/// or remembered, and then its preview (see dlgGoodsPreview). In the list of columns the mapped
/// Enter key says what the column holds; a name keeps that for sheets that come again.
class frmGoodsIn : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// Into the shop that is open.
  explicit frmGoodsIn(posMod& pos, QWidget* parent = nullptr);
  frmGoodsIn(const KeyBoard& keys, GoodsTarget target, QWidget* parent);

  /// The sheet of an accepted form, and what it does.
  const GoodsSheet& sheet() const { return sheet_; }
  const GoodsPreview& taken() const { return *taken_; }

 private:
  void arrange();
  void completePaths();
  void openFile();
  void showMapping();
  void chooseField(int row);
  void preview();

  GoodsTarget target_;
  GoodsSheet sheet_;
  std::optional<GoodsPreview> taken_;
  QLineEdit* txtFile_;
  QTableWidget* tblMapping_;
  QLineEdit* txtName_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
  QLabel* lblHint_;
};
