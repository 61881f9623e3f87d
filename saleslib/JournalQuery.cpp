#include "saleslib/JournalQuery.h"

#include <vector>

#include "store/Connection.h"

void readJournal(Connection& connection, const JournalFilter& filter,
                 const std::function<bool(const JournalEntry&)>& taker) {
  std::string query = "select * from fact where 1";
  std::vector<Value> bound;
  const auto where = [&](const char* condition, Value value) {
    query.append(" and ").append(condition);
    bound.push_back(std::move(value));
  };
  if (filter.from) where("time >= ?", toValue(DateTime{*filter.from}));
  if (filter.to) where("time < ?", toValue(DateTime{plusDays(*filter.to, 1)}));
  if (!filter.kind.empty()) where("kind = ?", toValue(filter.kind));
  if (filter.operatorId) where("operator = ?", toValue(*filter.operatorId));
  if (filter.till) where("till = ?", toValue(*filter.till));
  query += " order by seq";
  Rows rows = connection.queryBound(query.c_str(), std::move(bound));
  while (rows.next()) {
    if (!taker(JournalEntry::fromRow(rows))) return;
  }
}
