#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "saleslib/Export.h"
#include "saleslib/ShiftTakings.h"

class Connection;
struct ShiftHead;

/// What was done while a shift was open that no takings show. It says nothing of its own: the
/// journal has each deed, with who did it and who approved.
struct ShiftDeeds {
  std::int64_t drawerOpened = 0;  ///< neither for a sale, nor to move cash, nor to count it
  ShiftSum cancelled;             ///< bills with goods on them, and what those came to
  ShiftSum deleted;               ///< lines, and what they came to
  std::int64_t approvals = 0;     ///< given, not refused
};

/// The part of the journal that is a shift's: from the entry that opened it on to the one that
/// closed it; of an open one to the journal's last, and from the journal's beginning if that was
/// later.
struct ShiftJournal {
  std::int64_t first = 0, last = 0;
  std::string lastHash;
};

/// None when the shop kept no journal when the shift was closed, or keeps none of an open one.
/// Throws StoreError.
std::optional<ShiftJournal> journalOf(Connection& connection, const ShiftHead& shift);
/// Counts the deeds of that part. Throws StoreError; an entry that cannot be read is none.
ShiftDeeds deedsIn(Connection& connection, const ShiftJournal& part);
