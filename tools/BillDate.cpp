#include "tools/BillDate.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"
#include "tools/Examination.h"

namespace {

struct Line {
  std::int64_t id;
  std::optional<DateTime> time;  ///< nothing when it is no time
};

/// A time of the data file; nothing for what is none.
std::optional<DateTime> timeOf(const Row& row, const char* column) {
  try {
    return row.dateTime(column);
  } catch (const StoreError&) {
    return std::nullopt;
  }
}

std::vector<Line> linesOf(Connection& connection, std::int64_t bill) {
  std::vector<Line> lines;
  Rows rows = connection.query(
      "select id, insert_Date from sellProducts where sellId = ? order by id", bill);
  while (rows.next()) lines.push_back({rows.whole("id").value(), timeOf(rows, "insert_Date")});
  return lines;
}

bool isWrong(const std::optional<DateTime>& time, const DateTime& right, const DateTime& now) {
  return !time || *time > now || isFarFrom(*time, right);
}

/// The first line's time, if it can be the bill's.
DateTime timeOfFirst(const std::vector<Line>& lines, const DateTime& now) {
  if (!lines.empty() && lines.front().time && *lines.front().time <= now)
    return *lines.front().time;
  throw Refusal(
      Words::tr("商品行的时间也不对，要用 --to \"年-月-日 时:分:秒\" 写明这张单据的时间。"));
}

std::int64_t redateLines(Connection& connection, const std::vector<Line>& lines, const DateTime& to,
                         const DateTime& now) {
  std::int64_t changed = 0;
  for (const Line& line : lines) {
    if (!isWrong(line.time, to, now)) continue;
    changed += connection.run("update sellProducts set insert_Date = ? where id = ?", to, line.id);
  }
  return changed;
}

}  // namespace

Redated redateBill(Connection& connection, std::int64_t number, std::optional<DateTime> to,
                   const DateTime& now) {
  Transaction redating(connection);
  const std::string name = Words::tr("单据 %1", number);
  Rows bill = connection.query("select sell_time from sell where id = ?", number);
  if (!bill.next()) throw Refusal(Words::tr("没有%1。", name));
  const std::vector<Line> lines = linesOf(connection, number);
  const std::optional<DateTime> time = timeOf(bill, "sell_time");
  const std::optional<DateTime> first = lines.empty() ? time : lines.front().time;
  if (!isWrong(time, first.value_or(now), now)) {
    throw Refusal(Words::tr("%1 的时间 %2 没有不对的地方，没有改。", name, storedText(*time)));
  }
  if (to && *to > now) throw Refusal(Words::tr("--to 的时间还没有到。"));
  const DateTime right = to ? *to : timeOfFirst(lines, now);
  const std::string before = billMark(connection, number);
  connection.run("update sell set sell_time = ? where id = ?", right, number);
  const std::int64_t changed = redateLines(connection, lines, right, now);
  Journal(connection).note(EntryKind::kBillRedated, number, [&] {
    nlohmann::json body = billRecord(connection, number);
    body["from"] = storedText(time.value_or(DateTime()));
    body["before"] = before;
    return body;
  });
  redating.commit();
  return {time.value_or(DateTime()), right, changed};
}
