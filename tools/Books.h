#pragma once

#include <cstdint>
#include <functional>
#include <string>

class Connection;
class Rows;

/// What the books hold.
struct BooksSummary {
  std::int64_t faults = 0;
  std::int64_t bills = 0, openBills = 0, paidBills = 0, lines = 0, returns = 0, stockRows = 0;
};

/// Examines a data file: the engine's own integrity, and that the books agree with themselves.
///   - the lines of a settled bill add up to its quantity and goods amount, and each line's money
///   is
///     its price x quantity x discount;
///   - what was due is the goods amount but for the shop's rounding, and a stored-value payment
///     names its card and covers it;
///   - every line belongs to a bill, every return to a line of its bill, which it did not exceed;
///   - a bill is open or settled, an open one belongs to an operator, a settled one is not marked
///   as
///     paid but unsettled any more, and no number can be given twice;
///   - no card balance is below zero, and a member who never took goods back has bought for at
///   least
///     the sum of the stored bills;
///   - what is in stock is a number.
/// Not what a start is needed for: how much must be in stock or on a card.
/// Sees one state of the file, however much the till writes meanwhile. Memory does not grow with
/// it.
class Books {
 public:
  /// Told each fault, as a sentence for the shop's owner.
  using Report = std::function<void(const std::string& fault)>;

  Books(Connection& connection, Report report);

  /// Throws StoreError when the file cannot be read at all.
  BooksSummary check();

 private:
  struct Sums;

  void checkEngine();
  void checkBills();
  void checkPayments();
  void checkNumbers();
  void checkSums(const Sums& bill);
  void checkLineMoney();
  void checkLines();
  void checkReturns();
  void checkMembers();
  void checkPurchases();
  void checkStock();
  void count();
  void fault(const std::string& text);

  Connection& connection_;
  Report report_;
  BooksSummary found_;
};
