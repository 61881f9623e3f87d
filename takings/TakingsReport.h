#pragma once

#include <cstddef>
#include <optional>

#include "base/DateTime.h"
#include "takings/BillReading.h"
#include "takings/Report.h"

class Connection;
class TakingsSource;

/// What the owner asks.
struct ReportTerms {
  Date from, to;  ///< the days of the bills; both belong to them, and `from` is not after `to`
  /// Goods count as slow that were not sold in so many days up to `to`, also before `from`;
  /// nothing: in the period.
  std::optional<int> slowDays = {};
  double stockBelow = 10;       ///< goods with less in stock are listed, in stock units
  std::size_t mostGoods = 100;  ///< the most rows of each list of goods
};

/// The owner's report: takings by month, day, hour, operator, category and goods, kinds of payment,
/// discounts, returns, gross profit, goods that do not move, and goods of which little is left. Of
/// one state of the data file, however much the till writes meanwhile. Memory grows with goods,
/// days and operators, not with bills. Nothing when it was stopped. Throws StoreError, Overflow.
[[nodiscard]] std::optional<Report> takingsReport(Connection& shop, const ReportTerms& terms,
                                                  const DateTime& now, const ReportProgress& goOn);
/// The same of another source, whose state stays the same meanwhile; with the takings by till where
/// it tells them.
[[nodiscard]] std::optional<Report> takingsReport(TakingsSource& shop, const ReportTerms& terms,
                                                  const DateTime& now, const ReportProgress& goOn);
