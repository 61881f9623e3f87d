#pragma once

#include <QDialog>
#include <utility>
#include <vector>

#include "saleslib/Tenders.h"

class KeyBoard;
class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class Settlement;

/// The dialog in which the cashier takes payment. Draws a Settlement and turns keys into its calls.
/// One instance serves one bill after the other.
///
/// Keys: Enter or F1 on the cash field confirms, Esc on it leaves the bill unpaid; Enter on
/// discount, salesman, bank card, telephone and slip returns to the cash field; Enter on the card
/// number checks it, Enter on the password pays by card. The mapped keys count; the Enter key
/// itself always is one, and on the two card fields the only one.
class frmEndSell : public QDialog {
  Q_OBJECT

 public:
  explicit frmEndSell(const KeyBoard& keys, QWidget* parent = nullptr);
  /// Shows the dialog modally for that settlement; true when payment was confirmed.
  [[nodiscard]] bool init(Settlement& settlement);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* label(const char* name, const QString& text = {});
  QLineEdit* field(const char* name);
  QFrame* amountFrame();
  QFrame* otherFrame();
  void connectFields();
  /// The fields of the figures that are typed beside the cash.
  std::vector<std::pair<Tender, QLineEdit*>> figures() const;
  void showSettlement();
  void showTenders();
  void showChange();

  bool keyPressed(const QObject* watched, int key);
  bool cashKey(int key);
  void confirmCash();
  void checkCard();
  void payByCard();

  const KeyBoard& keys_;
  Settlement* settlement_ = nullptr;  ///< while the dialog shows
  QLabel* title_;
  QLabel* count_;
  QLabel* money_;
  QLabel* change_;
  QLabel* hint_;  ///< what the keys do, as they are mapped
  QLineEdit* cash_;
  QLineEdit* favorable_;
  QLineEdit* salesman_;
  QLineEdit* bankCard_;
  QLineEdit* phone_;
  QLineEdit* slip_;  ///< code of the payer's slip
  QLineEdit* cardNumber_;
  QLineEdit* password_;
};
