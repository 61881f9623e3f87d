#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "bench/Samples.h"

/// A figure of a row that must not exceed its limit.
struct Claim {
  std::string figure;
  double measured;
  double most;
  bool met() const { return measured <= most; }
};

/// One row of the table: what the till needs, what the same costs without it, and what is demanded.
struct Measured {
  std::string what;
  int size = 0;       ///< goods of the shop, or sold lines; 0 where it has none
  Samples till = {};  ///< empty where no time is measured
  Samples bare = {};  ///< empty where there is nothing to compare with
  std::vector<Claim> claims = {};

  /// Median against median.
  double ratio() const { return till.median() / bare.median(); }
};

/// What a run has measured, row by row.
class Table {
 public:
  void add(Measured row) { rows_.push_back(std::move(row)); }
  /// The row of that name at that size; nullptr when it was not measured.
  const Measured* find(const std::string& what, int size) const;
  /// Prints it as a Markdown table, with each limit and whether it was met.
  void print(std::ostream& out) const;
  /// How many rows fall short of a limit.
  int missed() const;

 private:
  std::vector<Measured> rows_;
};
