#pragma once

#include <cstddef>
#include <optional>

#include "base/Currency.h"
#include "devices/ReceiptPrinter.h"
#include "reports/TenderSum.h"

/// The hand-over sheet of a shift.
struct ShiftSheet {
  std::size_t bills = 0;
  double quantity = 0;
  std::optional<Currency> money;        ///< nothing when the sum does not fit
  std::vector<TenderSum> tenders = {};  ///< of it

  /// The figures, and two lines to sign on.
  LineDocument document() const;
};
