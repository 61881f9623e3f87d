#pragma once

#include <string_view>

/// A column of a goods table that has a fragment index (store/FragmentIndex.h).
struct FragmentColumn {
  std::string_view table;
  std::string_view column;
  std::string_view key;  ///< the item code, by which other tables are joined to this one
};

/// The column of that name, without regard to case; nullptr when it has no index.
const FragmentColumn* fragmentColumn(std::string_view column);
/// Whether the table has an index.
bool hasFragmentIndex(std::string_view table);
