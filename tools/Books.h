#pragma once

#include <cstdint>
#include <functional>
#include <string>

class Connection;
class Rows;

/// What the books hold.
struct BooksSummary {
  std::int64_t faults = 0;
  std::int64_t bills = 0, openBills = 0, lines = 0, returns = 0, stockRows = 0;
};

/// Examines a data file: the engine's own integrity, and that the books agree with themselves.
///   - the lines of a settled bill add up to its quantity and goods amount;
///   - every line belongs to a bill, every return to a line of its bill;
///   - a bill is open or settled, and an open one belongs to an operator;
///   - what is in stock is a number.
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
  void checkSums(const Sums& bill);
  void checkLines();
  void checkReturns();
  void checkStock();
  void count();
  void fault(const std::string& text);

  Connection& connection_;
  Report report_;
  BooksSummary found_;
};
