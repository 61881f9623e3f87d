#pragma once

#include <QDialog>

#include "base/Currency.h"
#include "returns/Returns.h"
#include "saleslib/Permission.h"
#include "shell/KeyDrivenDialog.h"

class QLayout;
class QTableView;
class ReturnLines;
class posMod;

/// The returns screen: a stored bill, one of its lines, how much of it comes back and what is
/// refunded. Draws a Returns and turns keys into its calls.
class frmUnSell : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmUnSell(posMod& pos, QWidget* parent = nullptr);

 private:
  QLineEdit* figure(const char* name);
  void setUpList();
  void arrange();
  QLayout* searchRow();
  QLayout* returnRow();
  void setUpEnter();
  void message(const QString& text);

  bool loadBill();
  void showBill();
  void chooseTyped();
  void chooseRow(int row);
  void showLine();
  void confirmQuantity();
  void quantityLeft();
  void showRefund(Currency refund);
  void rewriteRefund();
  void storeReturn();
  Permit refundAgreed(double quantity, Currency refund);

  posMod& pos_;
  Returns returns_;
  ReturnLines* lines_;
  QLineEdit* txtNo_;
  QLineEdit* txttm_;
  QTableView* lvlistSp_;
  QLabel* lblStatus_;
  QLineEdit* Text1_;
  QLineEdit* Text2_;
  QLineEdit* txtAmount_;
  QLineEdit* txtmoney_;
  QPushButton* cmdUnSell_;
  QPushButton* cmdExit_;
  QString confirmedQuantity_;  ///< the text that the refund was worked out from
};
