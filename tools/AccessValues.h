#pragma once

#include <optional>
#include <string>

#include "access/AccessFile.h"
#include "store/Value.h"
#include "tools/AccessTargets.h"

/// A value as our column holds it, with what had to be changed about it ("" for nothing).
struct TakenValue {
  Value value;
  std::string change;
};

/// An empty value is empty; so is an empty text in a column of another kind than texts. Nothing for
/// what the column cannot hold: text that is no number, 1.5 of something whole. A text is at most
/// 255 characters and has no control character, as everywhere in the data file: a longer one is
/// cut, and each control character becomes a blank.
std::optional<TakenValue> takenValue(const AccessValue& value, TargetColumn::Kind kind);

/// A value for people, shortened.
std::string shownValue(const AccessValue& value);
/// What the kind of column holds, for people: "金额".
std::string kindName(TargetColumn::Kind kind);
