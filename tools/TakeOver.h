#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "access/AccessFile.h"
#include "store/Value.h"
#include "tools/AccessPlan.h"

class Connection;

/// What became of one table.
struct TakenTable {
  std::string source, target;
  std::int64_t taken = 0;
  std::int64_t left = 0;
  std::int64_t changed = 0;
  /// Why rows were left out and what was changed about others, the first twenty of each.
  std::vector<std::string> reasons, changes;
};

struct TakenOver {
  std::vector<TakenTable> tables;
  std::vector<std::string> notes;  ///< what the owner should know besides
};

/// Brings the rows of another program's data file into a new shop's, all in one transaction: texts,
/// money, dates and empty values as they are there. Bills and lines keep their numbers, and the
/// next ones follow on them.
///
/// Rows that could not be kept are left out, each with its reason: a second one with the same key,
/// one without what it must have, a bill that was not settled, a line without its bill. What the
/// books here hold and those there did not is worked out from the rows (tools/TakeOverSums.h).
class TakeOver {
 public:
  using Progress = std::function<void(const std::string& table, std::int64_t rows)>;

  TakeOver(Connection& connection, const AccessFile& file, const AccessPlan& plan,
           Progress progress);

  /// Throws Refusal when one of the tables that would be filled has rows already. Nothing is
  /// written then, and when anything else fails.
  TakenOver run();

 private:
  using Values = std::vector<Value>;

  void requireEmpty() const;
  void takeTable(const PlannedTable& table);
  std::optional<Values> valuesOf(const PlannedTable& table, const AccessRow& row);
  void takeRow(const PlannedTable& table, Values values);
  std::string refusalOf(const PlannedTable& table, Values& values);
  std::string takeBill(const PlannedTable& table, Values& values);
  void insert(Values values);
  void insertMembers();
  void leave(const std::string& reason);
  void change(const std::string& what);

  Connection& connection_;
  const AccessFile& file_;
  const AccessPlan& plan_;
  Progress progress_;
  TakenOver done_;
  std::string insertText_;
  std::string row_;              ///< "第 3 行（10）", for the texts
  std::vector<Values> members_;  ///< until all are known: their numbers here follow those there
  std::map<std::int64_t, std::int64_t> memberNumbers_;  ///< here, by those there
  std::int64_t strangers_ = 0;                          ///< bills of members that are not there
};
