#pragma once

#include <QCoreApplication>
#include <QString>
#include <cstdint>
#include <memory>
#include <string>

#include "base/Currency.h"
#include "saleslib/ReturnBooks.h"

/// Taking goods back against a stored bill, without its window: which bill, which of its lines, how
/// much of it, and what is then written.
///
/// What a return does to the bill: the line holds less, and the bill's quantity and goods amount
/// follow its lines. The amount due falls by what the goods taken back were sold for; the rounding
/// that the customer paid at the settlement stays in it, so that the day's takings go on agreeing
/// with the drawer, until nothing of worth is left on the bill: then it is 0. The payments and the
/// discount given at the settlement stay as they were taken. The refund that was really paid out is
/// in the return record, and a member's purchases fall by it; points stay.
class Returns {
  Q_DECLARE_TR_FUNCTIONS(Returns)

 public:
  explicit Returns(ReturnBooks books);

  /// Loads the settled bill of that typed number, with no line chosen. An empty text, or why not. A
  /// text that is no number leaves everything as it was; any other refusal leaves no bill.
  [[nodiscard]] QString load(const QString& number);
  /// None before a bill is loaded.
  const ClsSell* bill() const { return bill_.get(); }
  /// Number, goods, amount, time, cashier and member of the loaded bill.
  QString billText() const;

  /// Chooses the first line that was sold under that code (blanks around, full-width characters and
  /// case don't matter) and still holds something; none when there is no such line.
  void chooseByCode(const QString& code);
  void chooseById(std::int32_t lineId);
  /// None before one is chosen.
  const ClsSellItem* line() const { return line_.get(); }

  /// The quantity typed, not above what the chosen line holds, rounded as quantities are. A text
  /// that is no number counts as 0.
  double quantityOf(const QString& typed) const;
  /// What that much of the chosen line was sold for; nothing for 0 or less.
  Currency worth(double quantity) const;

  /// What the cashier is to be asked before so much is refunded for that much of the chosen line:
  /// more than it was sold for, or more than what the line was sold for less what was refunded for
  /// it before. An empty text when there is nothing to ask. Throws StoreError.
  QString doubt(double quantity, Currency refund) const;

  /// Stock, return record, line, bill and member in one transaction; then no line is chosen, so
  /// that the same cannot be stored twice. An empty text, or why nothing was written.
  [[nodiscard]] QString takeBack(double quantity, Currency refund);

 private:
  void unload();
  QString open(std::int32_t billNo);
  Currency overpaid() const;
  QString follow(const ReturnBooks::Outcome& outcome);
  void loadAgain();

  ReturnBooks books_;
  std::shared_ptr<ClsSell> bill_;
  std::shared_ptr<ClsSellItem> line_;
};
