#pragma once

#include <QDialog>

#include "base/Currency.h"
#include "checkout/Returns.h"

class QKeyEvent;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QTableView;
class ReturnLines;

/// The returns screen: a stored bill, one of its lines, how much of it comes back and what is
/// refunded. Draws a Returns and turns keys into its calls. Opened by a logged-in operator.
class frmUnSell : public QDialog {
  Q_OBJECT

 public:
  explicit frmUnSell(posMod& pos, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* label(const char* name, const QString& text);
  QLineEdit* field(const char* name);
  QLineEdit* figure(const char* name);
  QPushButton* button(const char* name, const QString& text);
  void setUpList();
  void arrange();
  QLayout* searchRow();
  QLayout* returnRow();
  QLayout* buttonRow();

  /// True when the key was used up.
  bool handleKey(const QObject* watched, const QKeyEvent& event);
  bool enter(const QObject* watched);
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
  bool refundAgreed(Currency refund);

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
