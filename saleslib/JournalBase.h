#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "saleslib/Export.h"
#include "saleslib/JournalKinds.h"

class Connection;

/// States the books in the journal, as many rows to an entry as make some ten kilobytes: what its
/// later entries are held against. Quantities are as if nothing had been taken for open bills yet,
/// whose lines leave the stock for the journal when they are settled. Inside a transaction of the
/// caller (ensure). Throws StoreError.
class TESSALY_API JournalBase {
 public:
  explicit JournalBase(Connection& connection);

  /// Begins the journal: stock, members, operators, parameters, returns and top-ups row by row, and
  /// of the bills the marks of some hundred at a time.
  void state() const;
  /// The stock of these items, which something else than a sale has set; nothing unless the journal
  /// is on.
  void noteStock(const std::vector<std::string>& items) const;
  /// All members, of which an import may have changed any, and the top-ups that it recorded behind
  /// that number; nothing unless the journal is on.
  void noteMembers(std::int64_t lastTopUp) const;

 private:
  using Record = nlohmann::json (*)(Connection&, std::int64_t);
  void stateRows(const char* name, const char* query, Record record, std::int64_t behind = 0) const;
  void stateStock() const;
  void stateParameters() const;
  void stateBills() const;
  void append(EntryKind kind, const char* name, nlohmann::json rows) const;
  std::string quantityText(const std::string& item, double inStock) const;

  Connection& connection_;
  std::map<std::string, double> taken_;  ///< by open bills, by item code in lower case
};
