#include "tools/JournalChain.h"

#include "base/Words.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "store/Connection.h"

namespace {

std::string gapText(std::int64_t first, std::int64_t last) {
  return first == last ? Words::tr("日志少了第 %1 条", first)
                       : Words::tr("日志少了第 %1 到第 %2 条", first, last);
}

}  // namespace

void walkJournal(Connection& connection, const std::function<void(const std::string&)>& fault,
                 const std::function<void(const JournalEntry&)>& taker) {
  Rows rows = connection.query("select * from fact order by seq");
  JournalEntry before;
  while (rows.next()) {
    const JournalEntry entry = JournalEntry::fromRow(rows);
    const std::string name = Words::tr("日志第 %1 条", entry.seq);
    if (entry.seq != before.seq + 1) fault(gapText(before.seq + 1, entry.seq - 1));
    if (entry.hash != entry.sealedBehind(before.hash)) {
      fault(Words::tr("%1与它的校验值不符：它，或者它前面的一条，被改过或删过", name));
    }
    const bool isNoted = entry.kind == entryKind(EntryKind::kClockSetBack).key;
    if (!isNoted && isSetBack(before.time, entry.time)) {
      fault(Words::tr("%1的时间 %2 早于前一条的 %3", name, entry.time, before.time));
    }
    taker(entry);
    before = entry;
  }
}
