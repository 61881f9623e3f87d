#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Currency.h"

/// The hand-over sheet of a shift.
struct ShiftSheet {
  std::size_t bills = 0;
  double quantity = 0;
  Currency money;

  /// The sheet line by line: the figures, and two lines to sign on.
  std::vector<std::string> lines() const;
};
