#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/DateTime.h"
#include "tools/Column.h"

/// A table that the owner may import and export.
struct Table {
  const char* name;
  std::size_t keyColumns;  ///< the first columns are the key
  std::vector<Column> columns;

  /// The column of that name, without regard to ASCII case; nothing when there is none.
  std::optional<std::size_t> indexOf(std::string_view column) const;
};

/// tmda, spda, SP_LB, member or stock. `now` is when a new member joined unless the file says so.
/// Throws Refusal for any other name.
Table tableNamed(std::string_view name, const DateTime& now);
/// Their names, for the help text and the check of the option.
const std::vector<std::string>& tableNames();
