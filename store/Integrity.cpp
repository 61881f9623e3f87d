#include "store/Integrity.h"

#include <set>
#include <sstream>

#include "base/Text.h"
#include "store/Connection.h"
#include "store/Schema.h"

namespace {

/// The names that the statements of the tables' steps give: what follows on "create", its kind and
/// what belongs to it ("unique", "virtual").
std::set<std::string> namesMade() {
  const std::set<std::string> kinds = {"table", "view", "index", "trigger"};
  std::set<std::string> names;
  for (const std::string& step : schemaSteps()) {
    std::istringstream words(step);
    bool isMade = false;
    for (std::string word; words >> word;) {
      if (word == "create") {
        isMade = true;
      } else if (isMade && kinds.contains(word)) {
        words >> word;
        names.insert(asciiLower(word));
        isMade = false;
      }
    }
  }
  return names;
}

}  // namespace

std::vector<std::string> fileFaults(Connection& connection) {
  std::vector<std::string> faults;
  Rows rows = connection.query("pragma integrity_check");
  while (rows.next()) {
    const std::string answer = rows.text("integrity_check");
    if (answer != "ok") faults.push_back(answer);
  }
  return faults;
}

// The engine's own are left out, and the tables in which it keeps an index of fragments.
SchemaDifference schemaDifference(Connection& connection) {
  SchemaDifference difference;
  std::set<std::string> missing = namesMade();
  Rows rows = connection.query(
      "select type, name from sqlite_master where name not like 'sqlite\\_%' escape '\\'"
      " and name not like '%\\_fragments\\_%' escape '\\' order by name");
  while (rows.next()) {
    if (missing.erase(asciiLower(rows.text("name"))) > 0) continue;
    difference.added.push_back(rows.text("type") + " " + rows.text("name"));
  }
  difference.missing.assign(missing.begin(), missing.end());
  return difference;
}

std::int64_t lastNumberGiven(Connection& connection, const std::string& table) {
  Rows rows =
      connection.query("select max(seq) as last from sqlite_sequence where name = ?", table);
  return rows.next() ? rows.whole("last").value_or(0) : 0;
}
