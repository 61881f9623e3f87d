#pragma once

#include <QString>
#include <functional>

#include "base/Currency.h"

class ClsSell;
class CustomerDisplay;
class LineReceipt;
class posMod;

/// Taking payment for one bill, without its window: what each figure typed means, the change, and the
/// two ways to confirm. Figures typed go into the bill at once, also when the dialog is then left.
class Settlement {
 public:
  /// `say` shows a message box with an OK button.
  Settlement(posMod& pos, ClsSell& bill, CustomerDisplay& display, LineReceipt& receipt,
             std::function<void(const QString&)> say);

  /// The dialog opens: shows the amount due on the customer display.
  void begin();

  QString title() const;      ///< bill number, time, cashier
  QString countText() const;  ///< number of goods
  QString dueText() const;    ///< amount due, two decimals
  QString cashText() const;   ///< amount due as plain number, the first text of the cash field

  /// The text of one of these fields changed. Gives the text that the field must show: "0" for an
  /// empty text or one that is no number, else the text itself.
  [[nodiscard]] QString favorableChanged(const QString& text);
  [[nodiscard]] QString bankCardChanged(const QString& text);
  [[nodiscard]] QString salesmanChanged(const QString& text);

  /// The change, one decimal, from the texts of the fields; nothing (null) when one is no number.
  [[nodiscard]] QString change(const QString& cash, const QString& favorable,
                               const QString& bankCard) const;

  /// Confirms with the cash text; a text that is no number leaves the bill's cash figure.
  void confirmCash(const QString& cash);
  /// Whether a stored-value card of that number exists; says so when not.
  [[nodiscard]] bool checkCard(const QString& number);
  enum class CardResult { kPaid, kWrongPassword, kTooLittle };
  /// Pays the amount due from the card: checks the password and the balance, takes the payment with
  /// a statement that checks the balance once more, and says the outcome.
  [[nodiscard]] CardResult payByCard(const QString& number, const QString& password);

  /// Payment has been confirmed.
  bool settled() const { return settled_; }

 private:
  posMod& pos_;
  ClsSell& bill_;
  CustomerDisplay& display_;
  LineReceipt& receipt_;
  std::function<void(const QString&)> say_;
  bool settled_ = false;
};
