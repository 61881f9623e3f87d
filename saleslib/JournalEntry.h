#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "saleslib/Export.h"

class Row;

/// One entry of the journal, as its row holds it.
struct TESSALY_API JournalEntry {
  std::int64_t seq = 0;  ///< from 1, without a gap
  std::string time;      ///< in storedText form
  std::int64_t till = 1;
  std::optional<std::int64_t> operatorId;  ///< 0: the owner's tool; none: nobody was logged in
  std::optional<std::int64_t> approver;
  std::string kind;     ///< key of an EntryKindName
  std::string touches;  ///< what it is about: a bill's number, a card's, a parameter's name
  std::string body;     ///< JSON (RFC 8259), with figures as decimal texts and a version "v"
  std::string hash;

  static JournalEntry fromRow(const Row& row);
  /// What the hash must be behind an entry with the hash `before` (empty for the first): BLAKE2b
  /// (RFC 7693) of 32 bytes, in hexadecimal digits, over that hash and then each of the fields
  /// above, in this order, each with its length in bytes and a colon before it; an absent one is a
  /// "-" alone.
  std::string sealedBehind(const std::string& before) const;
};

/// Whether the clock was set back between two times (in storedText form) by more than the minute
/// that a correction may be. What is no time was not.
TESSALY_API bool isSetBack(const std::string& before, const std::string& now);

/// BLAKE2b of 16 bytes over a text, in hexadecimal digits: what stands for a text too long or too
/// secret for an entry.
TESSALY_API std::string textMark(const std::string& text);
