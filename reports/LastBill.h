#pragma once

#include <cstdint>
#include <optional>

#include "base/DateTime.h"

class Connection;

/// Where the sales query finds the last bill that was settled.
struct LastBill {
  std::int32_t number;
  Date firstDay, lastDay;  ///< of its lines
};

/// Nothing when no bill with lines was settled yet. Throws StoreError.
std::optional<LastBill> lastBill(Connection& connection);
