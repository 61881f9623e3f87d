#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/DateTime.h"

class Connection;

/// What the examinations of the books have in common. Each of them goes through the data file with
/// few statements, however large it is, keeps no table in memory, and says what is wrong as a
/// sentence for the shop's owner.
struct Examination {
  using Say = std::function<void(const std::string& text)>;

  Connection& connection;
  DateTime now;  ///< taken after the state of the file that is looked at
  Say fault;     ///< what cannot be right
  Say remark;    ///< what may be right, but is worth a look
  std::function<void(std::int64_t bills)> progress;  ///< told now and then
};

/// Whether a bill's time has nothing to do with its first line's: more than a day lies between.
bool isFarFrom(const DateTime& bill, const DateTime& line);

/// Every bill with its lines, read as the till reads them: what it could not read keeps the sale
/// screen from opening.
///   - the lines of a settled bill add up to its quantity and goods amount, each line's money is
///   its
///     price x quantity x discount, and each belongs to a bill;
///   - what was due is the goods amount but for the shop's rounding, and a stored-value payment
///     names its card and is what was due;
///   - an open bill has an operator and nobody has paid for it, a settled one is not marked as paid
///     but unsettled any more;
///   - its time is not in the future, and is that of its lines.
void examineBills(const Examination& books);

/// The lines in the order in which they were rung: time does not run backwards, and the goods are
/// known and have a row of stock.
void examineLines(const Examination& books);

/// Every return is of a line of its bill, with that line's terms, and took back no more than was
/// sold.
void examineReturns(const Examination& books);

/// Members, their cards and top-ups: read as the till reads them; no balance is below zero or above
/// that of the last top-up, nor below it by more than the card has paid; a member has bought for at
/// least the sum of the bills less what was refunded; none was deleted that a bill or a top-up
/// names.
void examineMembers(const Examination& books);

/// Goods and stock: prices, factors, ratios and dates are what their columns hold, barcodes and
/// stock belong to goods.
void examineGoods(const Examination& books);

/// Shifts of the drawer: numbered without a gap, at most one open, and the figures that each was
/// closed with are those of the bills, top-ups, returns and moved cash that belong to it.
void examineShifts(const Examination& books);

/// The journal, where the shop keeps one: its chain is whole, and the books are what its entries
/// make them: bills and lines, returns, top-ups, stock, members with balance, purchases and points,
/// operators with rights and passwords, shop parameters. Bills of before it began are held against
/// the marks with which it began. The exception to the above: it keeps some bytes for each bill and
/// item in memory, and each member, return and top-up.
void examineJournal(const Examination& books);

/// Operators, rights and shop parameters; that no number is given twice or runs out, and that no
/// row is missing where none is ever deleted.
void examineShop(const Examination& books);
