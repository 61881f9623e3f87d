#include "store/RowNumbers.h"

#include "base/Failure.h"
#include "store/Connection.h"

// A table that never had a row has no entry in the engine's list yet.
void numberRowsBehind(Connection& connection, const std::string& table, std::int64_t last) {
  ensure(connection.inTransaction(), "numbers are left out together with what asks for it");
  const char* const kSet = "update sqlite_sequence set seq = max(seq, ?) where name = ?";
  if (connection.run(kSet, last, table) > 0) return;
  connection.run("insert into sqlite_sequence (name, seq) values (?, ?)", table, last);
}
