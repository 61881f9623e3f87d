#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "takings/Report.h"
#include "takings/Sums.h"

/// The report's sections about bills.

ReportSection summarySection(const Takings& takings);
/// Whether there were takings in more than one month.
bool isLongerThanAMonth(const Takings& takings);
ReportSection monthSection(const Takings& takings);
ReportSection daySection(const Takings& takings);
ReportSection hourSection(const Takings& takings);
ReportSection tillSection(const Takings& takings);
/// `names` by number.
ReportSection operatorSection(const Takings& takings,
                              const std::map<std::int64_t, std::string>& names);
ReportSection tenderSection(const Takings& takings);
ReportSection discountSection(const Takings& takings,
                              const std::map<std::int64_t, std::string>& names);
