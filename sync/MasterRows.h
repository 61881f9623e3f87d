#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

class Connection;
struct MasterTable;

/// Writes rows of the shop's masters (saleslib/MasterTables.h) into a till's tables, those only
/// that differ. What was written of members and operators goes into the till's journal. Inside a
/// transaction. Throws StoreError.
class MasterRows {
 public:
  explicit MasterRows(Connection& connection) : connection_(connection) {}

  /// `body` is a row as JSON.
  void put(const MasterTable& table, const std::string& key, const std::string& body);
  /// The row is gone at the server. A member only cannot pay and buy as one any more, since bills
  /// name it, and a parameter has its sound value.
  void remove(const MasterTable& table, const std::string& key);
  /// Removes what is behind the one key, up to the other or, with none, to the table's end, and is
  /// not among `kept`.
  void removeOthers(const MasterTable& table, const std::string& behind, const std::string* upTo,
                    const std::set<std::string>& kept);
  /// Notes what was written; called last.
  void note();

 private:
  void putParameter(const std::string& body);
  void removeParameter(const std::string& name);
  void touched(const MasterTable& table, const std::string& key);
  void removeOperator(std::int64_t id);
  void noteOperator(std::int64_t id);

  Connection& connection_;
  std::set<std::int64_t> operators_, goneOperators_;
  std::set<std::string> members_;
};
