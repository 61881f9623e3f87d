#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/DateTime.h"
#include "shop/Column.h"

/// A table that the owner may import and export.
struct Table {
  const char* name;
  const char* meaning;     ///< for the owner
  std::size_t keyColumns;  ///< the first columns are the key
  /// A number for each row's key, by a query with "?" for the key's columns: the row's own, or that
  /// of its goods where rows have none.
  const char* numberQuery;
  std::vector<Column> columns;

  /// The column of that name, without regard to ASCII case; nothing when there is none.
  std::optional<std::size_t> indexOf(std::string_view column) const;
};

/// SP_LB, spda, tmda, member or stock. `now` is when a new member joined unless the file says so.
/// Throws Refusal for any other name.
Table tableNamed(std::string_view name, const DateTime& now);
/// Their names, in the order in which they are imported together: what others refer to comes first.
const std::vector<std::string>& tableNames();
/// What each table and each of its columns is, a line each, for the help text.
std::string tablesExplained();
