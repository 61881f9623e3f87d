#include "server/ChainCheck.h"

#include "base/Words.h"
#include "saleslib/JournalEntry.h"

namespace {

std::int64_t number(const ServerAnswer::Row& row, std::size_t column) {
  return wholeAt(row, column).value_or(0);
}

JournalEntry entryOf(const ServerAnswer::Row& row) {
  return {.seq = number(row, 2),
          .time = row.at(3).value_or(""),
          .till = number(row, 4),
          .operatorId = wholeAt(row, 5),
          .approver = wholeAt(row, 6),
          .kind = row.at(7).value_or(""),
          .touches = row.at(8).value_or(""),
          .body = row.at(9).value_or(""),
          .hash = row.at(10).value_or("")};
}

}  // namespace

void ChainCheck::addEpoch(const ServerAnswer::Row& row) {
  beginnings_[{number(row, 0), number(row, 1)}] = {number(row, 2), row.at(3).value_or("")};
}

void ChainCheck::take(const ServerAnswer::Row& row) {
  const History history{number(row, 0), number(row, 1)};
  if (history != history_) last_ = beginnings_[history];
  history_ = history;
  const JournalEntry entry = entryOf(row);
  if (entry.seq != last_.seq + 1) {
    fault(Words::tr("收银机 %1 的记录少了第 %2 到第 %3 条", history.first, last_.seq + 1,
                    entry.seq - 1));
  } else if (entry.hash != entry.sealedBehind(last_.hash)) {
    fault(Words::tr("收银机 %1 的第 %2 条记录与它的校验值不符：它，或者它前面的一条，被改过",
                    history.first, entry.seq));
  }
  last_ = {entry.seq, entry.hash};
}

void ChainCheck::fault(const std::string& text) {
  if (faults_.size() < most_) faults_.push_back(text);
}
