#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "base/NumberText.h"
#include "saleslib/Tenders.h"

class Connection;

/// What a shop would miss: the settled bills, what is in stock, the members with their cards, and
/// the records of returns and top-ups. One is kept by the journal, the other is read from the data
/// file.
struct Ledger {
  struct Line {
    std::string item, code;
    Currency price;
    Discount discount;
    double quantity = 0;
    int ratio = 1;

    Currency money() const { return lineAmount(price, quantity, discount); }
  };
  struct Bill {
    std::string member, card, slip;
    std::array<Currency, kTenders> tendered;  ///< by kind of payment
    int salesman = 0;
    std::vector<Line> lines;

    Currency& paidWith(Tender tender) { return tendered[static_cast<std::size_t>(tender)]; }
    Currency goodsAmount() const {
      Currency sum;
      for (const Line& line : lines) sum += line.money();
      return sum;
    }
  };

  /// All that is compared, by its name.
  std::map<std::string, Currency> money;
  std::map<std::string, double> numbers;
  /// The records so far.
  int returns = 0, topUps = 0, shifts = 0;
  /// The settled bills as the journal has them; none in a ledger that was read.
  std::map<int, Bill> bills;

  /// The bill is settled, or was changed by a return.
  void put(int number, const Bill& bill);
  /// Goods come back into the stock, or leave it by a quantity below 0.
  void addStock(const Line& line, double quantity);

  /// Throws std::runtime_error when the data file holds what no ledger can: a bill that is neither
  /// settled nor empty, a line without a bill, a damaged page, sums that do not agree.
  static Ledger read(Connection& connection);
};

/// What only one of the two has, each on a line of its own; empty when they agree.
std::string difference(const Ledger& expected, const Ledger& found);
