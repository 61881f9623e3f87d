#pragma once

#include <utility>
#include <vector>

#include "saleslib/Tenders.h"
#include "shell/KeyDrivenDialog.h"

class QFrame;
class Settlement;

/// The dialog in which the cashier takes payment. Draws a Settlement and turns keys into its calls.
/// One instance serves one bill after the other.
///
/// Keys: Enter or F1 on the cash field confirms, Esc on it leaves the bill unpaid; Enter on
/// discount, salesman, bank card, telephone and slip returns to the cash field; Enter on the card
/// number checks it, Enter on the password pays by card. The mapped keys count; the Enter key
/// itself always is one, and on the two card fields the only one.
class frmEndSell : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmEndSell(const KeyBoard& keys, QWidget* parent = nullptr);
  /// Shows the dialog modally for that settlement; true when payment was confirmed.
  [[nodiscard]] bool init(Settlement& settlement);

 protected:
  bool handleKey(const QObject* watched, const QKeyEvent& event) override;

 private:
  QFrame* amountFrame();
  QFrame* otherFrame();
  void connectFields();
  void setUpEnter();
  /// The fields of the figures that are typed beside the cash.
  std::vector<std::pair<Tender, QLineEdit*>> figures() const;
  void showSettlement();
  void showTenders();
  void showChange();

  void confirmCash();
  void checkCard();
  void payByCard();

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
