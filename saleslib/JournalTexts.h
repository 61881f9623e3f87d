#pragma once

#include <string>

#include "saleslib/Export.h"

struct JournalEntry;

/// The kind of an entry as people call it; its key when this program does not know it.
TESSALY_API std::string entryName(const JournalEntry& entry);
/// What an entry tells besides its kind and what it touches, in one line of Chinese for people:
/// figures, goods, from and to.
TESSALY_API std::string entryDetails(const JournalEntry& entry);
