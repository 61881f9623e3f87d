#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/Currency.h"
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
    Currency amount;
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
  struct Member {
    Currency balance, totalSpent;
    int points = 0;
  };
  struct Return {
    int bill = 0;
    std::string item;
    double quantity = 0;
    Currency money;
  };
  struct TopUp {
    std::string card;
    Currency paid, credited, balance;
    bool isComplete = true;  ///< not a record alone, without the card's balance
  };

  std::map<int, Bill> bills;
  std::map<std::string, double> stock;
  std::map<std::string, Member> members;
  std::vector<Return> returns;
  std::vector<TopUp> topUps;

  /// Throws std::runtime_error when the data file holds what no ledger can: a bill that is neither
  /// settled nor empty, a line without a bill, a damaged page, sums that do not agree.
  static Ledger read(Connection& connection);

  /// Everything as sentences, so that two ledgers can be compared and the difference be read.
  std::set<std::string> entries() const;
};

/// The entries that only one of the two has, each on a line of its own; empty when they agree.
std::string difference(const Ledger& expected, const Ledger& found);
