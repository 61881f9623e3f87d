#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/DateTime.h"
#include "saleslib/Export.h"
#include "saleslib/JournalEntry.h"

class Connection;

/// Which entries of the journal are wanted; what is not set filters nothing.
struct JournalFilter {
  std::optional<Date> from, to;  ///< days, both included
  std::string kind;              ///< key of an EntryKindName
  std::optional<std::int64_t> operatorId, till;
};

/// Gives those entries in their order, as long as `taker` wants more. Throws StoreError.
TESSALY_API void readJournal(Connection& connection, const JournalFilter& filter,
                             const std::function<bool(const JournalEntry&)>& taker);
