#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "base/DateTime.h"
#include "store/Value.h"

/// A column that can be filled from another program's data file.
struct TargetColumn {
  enum class Kind {
    kText,
    kMoney,
    kNumber,
    kWhole,
    kFlag,  ///< whole; -1 counts as 1, since both mean yes in Access
    kDate
  };

  const char* name;
  Kind kind;
  /// What an empty value becomes here, and what rows have when the other file lacks the column;
  /// nothing for one that it must have, and filled.
  std::optional<Value> empty;
};

/// A table that can. The first column names a row to people; in a renumbered table it is the row's
/// number in the other file only.
struct TargetTable {
  const char* name;
  std::vector<TargetColumn> columns;
  bool isRenumbered = false;

  std::optional<std::size_t> indexOf(std::string_view column) const;
};

/// All of them, what others refer to first. `now` is when members joined whose file does not say.
std::vector<TargetTable> targetTables(const DateTime& now);
