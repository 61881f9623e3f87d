#include "tools/JournalChain.h"

#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "store/Connection.h"

namespace {

std::string gapText(std::int64_t first, std::int64_t last) {
  const std::string from = "日志少了第 " + std::to_string(first);
  return (first == last ? from : from + " 到第 " + std::to_string(last)) + " 条";
}

}  // namespace

void walkJournal(Connection& connection, const std::function<void(const std::string&)>& fault,
                 const std::function<void(const JournalEntry&)>& taker) {
  Rows rows = connection.query("select * from fact order by seq");
  JournalEntry before;
  while (rows.next()) {
    const JournalEntry entry = JournalEntry::fromRow(rows);
    const std::string name = "日志第 " + std::to_string(entry.seq) + " 条";
    if (entry.seq != before.seq + 1) fault(gapText(before.seq + 1, entry.seq - 1));
    if (entry.hash != entry.sealedBehind(before.hash)) {
      fault(name + "与它的校验值不符：它，或者它前面的一条，被改过或删过");
    }
    const bool isNoted = entry.kind == entryKind(EntryKind::kClockSetBack).key;
    if (!isNoted && isSetBack(before.time, entry.time)) {
      fault(name + "的时间 " + entry.time + " 早于前一条的 " + before.time);
    }
    taker(entry);
    before = entry;
  }
}
