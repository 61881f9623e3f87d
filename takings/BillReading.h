#pragma once

#include <functional>
#include <optional>

#include "base/DateTime.h"
#include "takings/Sums.h"

class TakingsSource;

/// Called now and then with the part done, 0 ... 1; false stops the report.
using ReportProgress = std::function<bool(double part)>;

/// Which bills are read.
struct ReadingPeriod {
  Date from, to;  ///< both belong to it
  Date slowFrom;  ///< lines from here on, which may be before `from`, show that goods move
};

/// Adds up the settled bills whose time is in the period, with their lines, in one walk along the
/// bills, and the returns that were taken in it. Nothing when it was stopped. Throws StoreError for
/// a value that is not of its column's kind, and Overflow.
[[nodiscard]] std::optional<Takings> readTakings(TakingsSource& shop, const ReadingPeriod& period,
                                                 const ReportProgress& goOn);
