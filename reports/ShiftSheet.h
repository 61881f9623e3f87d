#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "reports/TenderSum.h"

/// The hand-over sheet of a shift.
struct ShiftSheet {
  std::size_t bills = 0;
  double quantity = 0;
  std::optional<Currency> money;        ///< nothing when the sum does not fit
  std::vector<TenderSum> tenders = {};  ///< of it

  /// The sheet line by line: the figures, and two lines to sign on.
  std::vector<std::string> lines() const;
};
