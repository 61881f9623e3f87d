#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>

#include "base/Currency.h"

class ClsSell;
class CustomerDisplay;
class LineReceipt;
class posMod;
class SaleScreen;

/// Taking payment for one bill, without its window: what each figure typed means, the change, and
/// the two ways to confirm. Figures typed go into the bill at once, also when the dialog is then
/// left.
class Settlement {
  Q_DECLARE_TR_FUNCTIONS(Settlement)

 public:
  /// Messages and questions come in the screen's message boxes.
  Settlement(posMod& pos, ClsSell& bill, CustomerDisplay& display, LineReceipt& receipt,
             SaleScreen& screen);

  /// The dialog opens: shows the amount due on the customer display.
  void begin();

  QString title() const;          ///< bill number, time, cashier
  QString countText() const;      ///< number of goods
  QString dueText() const;        ///< amount due, two decimals
  QString cashText() const;       ///< amount due as plain number, the first text of the cash field
  QString favorableText() const;  ///< the bill's figures as plain numbers, the first texts of the
  QString bankCardText() const;   ///< other fields: not 0 when the bill's dialog was left before
  QString salesmanText() const;

  /// The text of one of these fields changed. Gives the text that the field must show: "0" for an
  /// empty text or one that is no number, else the text itself.
  [[nodiscard]] QString favorableChanged(const QString& text);
  [[nodiscard]] QString bankCardChanged(const QString& text);
  [[nodiscard]] QString salesmanChanged(const QString& text);

  /// The change, one decimal, from the texts of the fields, or that it does not fit; nothing (null)
  /// when one is no number.
  [[nodiscard]] QString change(const QString& cash, const QString& favorable,
                               const QString& bankCard) const;

  /// Confirms with the cash text; a text that is no number leaves the bill's cash figure. What
  /// looks mistyped is asked for first (see FigureCheck), and a No confirms nothing. The figures
  /// become durable with the mark of a paid bill (see ClsSell::SavePaid); then the cash is shown on
  /// the display and the footer printed. What cannot be made durable, or has a change that does not
  /// fit, is said, and payment is not confirmed (see settled). Once confirmed, does nothing more.
  void confirmCash(const QString& cash);
  /// The number of the usable stored-value card that was typed or swiped, blanks, full-width
  /// characters and the reader's own ones cleaned away where the text as typed is no card's.
  /// Nothing (null) when there is none, and says why. A query that fails counts as an unknown card.
  [[nodiscard]] QString checkCard(const QString& number);
  enum class CardResult { kPaid, kUnknownCard, kWrongPassword, kTooLittle, kFailed };
  /// Takes the whole amount due from the card, whatever the other fields hold: the balance and the
  /// paid bill in one transaction, which confirms payment. A negative amount would load the card
  /// and is refused. Says every refusal; nothing is charged and the bill is as it was then.
  [[nodiscard]] CardResult payByCard(const QString& number, const QString& password);
  /// After kPaid: says the new balance, shows and prints.
  void sayCardPaid();

  /// Payment has been confirmed and is durable.
  bool settled() const { return settled_; }

 private:
  void say(const QString& text);
  bool mayBePaid(const ClsSell& paid, const QString& cash);
  CardResult tryToCharge(const std::string& number, const std::string& password);
  CardResult charge(const std::string& password);
  void showAndPrint();

  posMod& pos_;
  ClsSell& bill_;
  CustomerDisplay& display_;
  LineReceipt& receipt_;
  SaleScreen& screen_;
  Currency cardBalance_;  ///< left on the card after payByCard
  bool settled_ = false;
};
