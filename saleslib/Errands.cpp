#include "saleslib/Errands.h"

#include "base/Failure.h"
#include "store/Connection.h"

bool beginErrand(Connection& connection, const std::string& key) {
  ensure(connection.inTransaction(), "an errand is done together with its mark");
  if (connection.query("select 1 from errand_done where key = ?", key).next()) return false;
  connection.run("insert into errand_done (key) values (?)", key);
  return true;
}

void endErrand(Connection& connection, const std::string& key, std::int64_t result) {
  connection.run("update errand_done set result = ? where key = ?", result, key);
}

std::int64_t errandResult(Connection& connection, const std::string& key) {
  Rows row = connection.query("select result from errand_done where key = ?", key);
  return row.next() ? row.whole("result").value_or(0) : 0;
}
