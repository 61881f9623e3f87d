#pragma once

#include <map>
#include <string>
#include <vector>

#include "kill/Ledger.h"

/// The goods and cards of the demo shop that the day is played with, with prices worked out here
/// and not by the till.
class Goods {
 public:
  struct Card {
    std::string password;
    Discount discount;
  };

  explicit Goods(Connection& connection);

  std::size_t count() const { return items_.size(); }
  /// A line of one unit, as the till has to price it for that member ("": nobody).
  Ledger::Line line(std::size_t item, const std::string& member) const;
  const std::map<std::string, Card>& cards() const { return cards_; }

 private:
  struct Item {
    Ledger::Line retail;
    Currency memberPrice;  ///< 0: none
  };

  std::vector<Item> items_;
  std::map<std::string, Card> cards_;
};
