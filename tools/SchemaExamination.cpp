#include <algorithm>
#include <set>
#include <sstream>
#include <string>

#include "base/Text.h"
#include "store/Connection.h"
#include "store/Schema.h"
#include "tools/Examination.h"

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

void examineSchema(const Examination& books) {
  std::set<std::string> missing = namesMade();
  // The engine's own, and the tables in which it keeps an index of fragments.
  Rows rows = books.connection.query(
      "select type, name from sqlite_master where name not like 'sqlite\\_%' escape '\\'"
      " and name not like '%\\_fragments\\_%' escape '\\' order by name");
  while (rows.next()) {
    if (missing.erase(asciiLower(rows.text("name"))) > 0) continue;
    books.fault("数据文件里多了本程序没有的东西：" + rows.text("type") + " " + rows.text("name"));
  }
  for (const std::string& name : missing) {
    books.fault("数据文件里少了本程序要用的东西：" + name);
  }
}
