#pragma once

#include <map>
#include <string>

#include "base/Currency.h"

class Connection;

/// The figures of a shop that follow from its own records, whoever made them and however.
class Figures {
 public:
  /// Where the shop begins.
  explicit Figures(Connection& connection);

  /// Holds the books against the beginning: what the lines of all bills took is missing from the
  /// stock, what the bills took from a card is missing on it (as long as it was not topped up,
  /// where the cashier has the last word), a member's purchases are those of the bills less what
  /// was paid back. Members that are new begin here. Throws std::runtime_error naming what is
  /// wrong.
  void check(Connection& connection);

 private:
  void checkStock(Connection& connection) const;
  void checkMembers(Connection& connection);

  struct Member {
    Currency balance, totalSpent;
  };
  std::map<std::string, double> stock_;
  std::map<std::string, Member> members_;
};
