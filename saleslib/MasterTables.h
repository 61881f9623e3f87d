#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "saleslib/Export.h"
#include "store/Value.h"

class Row;

/// A table that the shop's office fills and every till has: what of it goes through the server. A
/// row travels as a JSON object (RFC 8259) of its columns, under a key that compares like the
/// table's own: ASCII letters in lower case, two columns apart by U+001F.
struct TESSALY_API MasterTable {
  const char* name;
  std::size_t keyColumns;  ///< the first columns are the key
  std::vector<std::string> columns;

  /// Engine text that gives a row's key.
  std::string keyText() const;
  std::string bodyOf(const Row& row) const;
  /// The columns' values, in their order; Null where the JSON has none. Throws StoreError for what
  /// is no such row.
  std::vector<Value> valuesOf(const std::string& body) const;
};

inline constexpr char kKeySeparator = '\x1f';

/// In the order of their names, byte by byte. What belongs to one till stays out: stock, balances,
/// purchases and points, who is logged in, and those parameters for which isOfTill.
TESSALY_API const std::vector<MasterTable>& masterTables();
/// None of that name: null.
TESSALY_API const MasterTable* masterTable(const std::string& name);

/// Whether a shop parameter says something about one till and not about the shop.
TESSALY_API bool isOfTill(const std::string& parameter);
