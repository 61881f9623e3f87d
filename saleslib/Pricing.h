#pragma once

#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/Export.h"

class ClsMember;
class Row;

/// What an item costs this customer today.
struct Price {
  Currency price;
  Discount discount;
  std::string name;      ///< as the bill shows it
  bool missing = false;  ///< no price: the cashier is asked for one
};

/// For a row of tmda: member price, else promotion, else retail price. `today` is the date without
/// time: a promotion that starts today at 09:00 starts tomorrow.
TESSALY_API Price priceOfBarcodeRow(const Row& row, const ClsMember* member, const Date& today,
                                    double generalRate);
/// For a row of spda, which has no promotion. Without a retail price the discount is none.
TESSALY_API Price priceOfMasterRow(const Row& row, const ClsMember* member, double generalRate);
