#pragma once

#include <map>
#include <string>

#include "base/Currency.h"

class Connection;

/// What a shop began with, as it follows from its books at any later time, whoever wrote them and
/// however: the stock and what the lines of all bills took from it; the money on a card and what
/// bills took from it (as long as it was not topped up, where the cashier has the last word); a
/// member's purchases less those of the bills, and what was paid back.
class Figures {
 public:
  explicit Figures(Connection& connection);

  /// Holds the books against the beginning; goods that are new began with no stock, members that
  /// are new begin here. Throws std::runtime_error naming what is wrong.
  void check(Connection& connection);

 private:
  std::map<std::string, double> stock_;
  std::map<std::string, Currency> accounts_;
};
