#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "saleslib/JournalEntry.h"

class Connection;

/// How far a history goes: the number and the hash of its last entry; nothing of it at 0.
struct Place {
  std::int64_t seq = 0;
  std::string hash = {};
};

/// Whether the till's own journal has that very entry; the beginning is everybody's. Throws
/// StoreError, as all of these.
bool hasEntry(Connection& connection, const Place& place);
/// The next entries behind that one, as many as go up at once.
std::vector<JournalEntry> nextEntries(Connection& connection, const Place& behind);
/// The last entries before that number, the latest first: what a till tells of its history.
std::vector<Place> lastEntries(Connection& connection, std::int64_t before, int most);
/// Entries as the server takes them: JSON (RFC 8259), an array of objects with the fields of the
/// table `fact`. What no text at the server can hold (bytes that are no UTF-8, the character NUL)
/// is replaced by U+FFFD: the entry goes up, and the server's check says that its hash is another
/// one.
std::string entriesText(const std::vector<JournalEntry>& entries);
