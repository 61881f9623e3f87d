#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/Value.h"

/// One column of a table as the owner may import and export it.
struct Column {
  enum class Kind {
    kCode,      ///< barcode, item code, card number: not empty, no blanks at its ends
    kName,      ///< text that is not empty
    kText,      ///< text
    kPrice,     ///< money, not negative
    kMoney,     ///< money
    kFactor,    ///< discount factor above 0, at most 1
    kQuantity,  ///< number, rounded to six decimals
    kRatio,     ///< whole number 1 ... 32767
    kCount,     ///< whole number of 16 bits
    kKey,       ///< whole number of 32 bits
    kFlag,      ///< 0 or 1
    kDate,      ///< date, with or without a time
  };

  const char* name;
  Kind kind;
  /// What an empty field stands for, and what a new row has when the file lacks the column; nothing
  /// for a column that must be filled in.
  std::optional<Value> fallback;
  const char* meaning;  ///< for the owner
  /// The till writes it with every sale: a file that was exported before would bring back what has
  /// been spent since. Rows that exist keep it unless the owner asks for the file's.
  bool isAccount = false;

  /// A field as the column holds it; nothing when it is none (see expectation). Text is at most 255
  /// characters, as everywhere in the data file, and has no control character.
  std::optional<Value> valueOf(const std::string& field) const;
  /// What the column wants, for the one who has to correct the file.
  std::string expectation() const;
};
