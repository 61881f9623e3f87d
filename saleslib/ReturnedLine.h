#pragma once

#include <cstdint>
#include <string>

#include "saleslib/Export.h"

class ClsSell;
class ClsSellItem;
class Connection;

/// The line of a settled bill holds so much less, and the bill follows its lines. The rounding that
/// the customer paid stays in the amount due until nothing of worth is left. Neither is stored.
void lowerLine(ClsSell& bill, ClsSellItem& line, double quantity);

/// Goods that came back at another till against a bill of this one.
struct ReturnElsewhere {
  std::string key;  ///< under which that till asked for it
  int till = 0;
  std::int64_t bill = 0, line = 0;
  double quantity = 0;
};
/// The bill follows, once however often it is told; money and stock are the other till's. One
/// transaction. Throws StoreError.
TESSALY_API void followReturn(Connection& connection, const ReturnElsewhere& returned);
