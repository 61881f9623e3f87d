#include "sync/Backlog.h"

#include "saleslib/JournalKinds.h"
#include "store/Connection.h"

std::int64_t Backlog::bills(const Place& atServer) {
  Rows last = connection_.query("select seq from fact order by seq desc limit 1");
  const std::int64_t newest = last.next() ? last.whole("seq").value_or(0) : 0;
  if (atServer.seq < from_ || atServer.seq > upTo_) {
    bills_ = countBetween(atServer.seq, newest);
  } else {
    bills_ += countBetween(upTo_, newest) - countBetween(from_, atServer.seq);
  }
  from_ = atServer.seq;
  upTo_ = newest;
  return bills_;
}

std::int64_t Backlog::countBetween(std::int64_t behind, std::int64_t upTo) const {
  if (behind >= upTo) return 0;
  Rows row = connection_.query(
      "select count(*) as bills from fact where seq > ? and seq <= ? and kind in (?, ?)", behind,
      upTo, std::string(entryKind(EntryKind::kBillSettled).key),
      std::string(entryKind(EntryKind::kBillCompleted).key));
  return row.next() ? row.whole("bills").value_or(0) : 0;
}
