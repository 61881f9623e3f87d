#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "base/Currency.h"
#include "saleslib/Permission.h"
#include "saleslib/StoredCard.h"
#include "saleslib/Tenders.h"

class BillBooks;
class ClsSell;
class CustomerDisplay;
class Messages;

/// Taking payment for one bill, without its window: what each figure typed means, the change, and
/// the two ways to confirm. Figures typed go into the bill at once, also when the dialog is then
/// left.
class Settlement {
 public:
  /// The bill is open (ensure). `paid` is called once, when the payment is durable and shown.
  Settlement(BillBooks& books, ClsSell& bill, CustomerDisplay& display, Messages& screen,
             std::function<void()> paid);

  /// The dialog opens: shows the amount due on the customer display.
  void begin();

  QString title() const;      ///< bill number, time, cashier
  QString countText() const;  ///< number of goods
  QString dueText() const;    ///< amount due, two decimals
  QString cashText() const;   ///< amount due as plain number, the first text of the cash field
  /// The bill's figures as plain numbers, the first texts of the other fields: not 0 when the
  /// bill's dialog was left before.
  QString figureText(Tender tender) const;
  QString salesmanText() const;
  QString slipText() const;
  /// Whether the shop takes that kind of payment.
  bool takes(Tender tender) const;

  /// The text of one of these fields changed. Gives the text that the field must show: "0" for an
  /// empty text or one that is no number, else the text itself.
  [[nodiscard]] QString figureChanged(Tender tender, const QString& text);
  [[nodiscard]] QString salesmanChanged(const QString& text);
  /// The code on the payer's slip was typed or scanned; gives what the field must show.
  [[nodiscard]] QString slipChanged(const QString& text);

  /// The change, one decimal, for a cash text and the bill's other figures, or that it does not
  /// fit; nothing (null) when the text is no number.
  [[nodiscard]] QString change(const QString& cash) const;

  /// Confirms with the cash text; a text that is no number leaves the bill's cash figure. What
  /// looks mistyped is asked for first (see FigureCheck), and a No confirms nothing. The figures
  /// become durable with the mark of a paid bill (see BillBooks::markPaid); then the cash is shown
  /// on the display and the footer printed. What cannot be made durable, or has a change that does
  /// not fit, is said, and payment is not confirmed (see settled). Once confirmed, does nothing
  /// more.
  void confirmCash(const QString& cash);
  /// The number of the usable stored-value card that was typed or swiped (see payingCardNumbers).
  /// Nothing (null) when there is none, and says why. A query that fails counts as an unknown card.
  [[nodiscard]] QString checkCard(const QString& number);
  /// Takes the whole amount due from the card, whatever the other fields hold: the balance and the
  /// paid bill in one transaction, which confirms payment. A negative amount would load the card
  /// and is refused. Says every refusal; nothing is charged and the bill is as it was then. No
  /// outcome: the card was not asked, or the data file failed.
  [[nodiscard]] std::optional<CardOutcome> payByCard(const QString& number,
                                                     const QString& password);
  /// After payByCard has paid: says the new balance, shows and prints.
  void sayCardPaid();

  /// Payment has been confirmed and is durable.
  bool settled() const { return settled_; }
  /// Leave for what the shop gave up, to be kept until the bill is stored; none when it was
  /// nothing.
  const Permit& favour() const { return favour_; }

 private:
  void say(const QString& text);
  ClsSell& unpaid();
  bool mayBePaid(const ClsSell& paid, const QString& cash);
  bool mayBeGivenUp(const ClsSell& paid);
  std::optional<CardOutcome> charge(ClsSell paid, const QString& password);
  void showAndPrint();

  BillBooks& books_;
  ClsSell& bill_;
  CustomerDisplay& display_;
  Messages& screen_;
  std::function<void()> paid_;
  Permit favour_;
  Currency cardBalance_;  ///< left on the card after payByCard
  bool settled_ = false;
};
