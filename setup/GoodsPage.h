#pragma once

#include <QString>
#include <array>

#include "setup/SetupPage.h"

class KeyBoard;
class QPushButton;
class QTableWidget;

/// Goods from a sheet, typed one after the other, or none yet. A sheet is previewed as it is at the
/// till (goodsin/frmGoodsIn.h) and comes in with the shop; typed goods are tried one by one.
class GoodsPage : public SetupPage {
  Q_OBJECT

 public:
  GoodsPage(SetupAnswers& answers, const KeyBoard& keys);
  QString title() const override { return tr("商品"); }
  QString take() override;

 private:
  static constexpr std::size_t kFields = 5;

  void addSheetRow();
  void addTypedRow();
  void addTable();
  void chooseSheet();
  void dropSheet();
  TypedGoods typed() const;
  void show(const TypedGoods& goods);
  /// Adds what is in the fields; else why not.
  QString add();
  void addAndGoOn();
  void showList();
  void correct(int row);
  void remove(int row);

  const KeyBoard& keys_;
  QLabel* lblSheet_;
  QPushButton* cmdNoSheet_;
  std::array<QLineEdit*, kFields> fields_;  ///< in the order of TypedGoods
  QLabel* lblTyped_;
  QTableWidget* tblTyped_;
};
