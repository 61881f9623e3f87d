#pragma once

#include <functional>
#include <string>

struct JournalEntry;
class Connection;

/// Walks the journal from its first entry: numbers without a gap, each entry with the hash that
/// stands behind the one before, no time earlier without an entry that the clock was set back.
/// `fault` is told what cannot be right, as a sentence; `taker` gets each entry. Throws StoreError.
void walkJournal(Connection& connection, const std::function<void(const std::string&)>& fault,
                 const std::function<void(const JournalEntry&)>& taker);
