#include "store/SteppedCopy.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "base/WholeFile.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "store/Engine.h"
#include "store/Schema.h"
#include "store/Snapshot.h"
#include "store/StoreError.h"

namespace {

constexpr int kStepPages = 64;  // 256 KiB

}  // namespace

struct SteppedCopy::Count {
  std::int64_t bills = 0, lines = 0, lastBill = 0;
  bool operator==(const Count&) const = default;
};

SteppedCopy::Count SteppedCopy::countOf(Connection& connection) {
  Rows rows = connection.query(
      "select (select count(*) from sell) as bills, (select count(*) from sellProducts) as lines,"
      " (select coalesce(max(id), 0) from sell) as last_bill");
  rows.next();
  return {rows.whole("bills").value(), rows.whole("lines").value(),
          rows.whole("last_bill").value()};
}

SteppedCopy::SteppedCopy(DataSource source, const FileIdentity& opened, Stop stop)
    : source_(std::move(source)), opened_(opened), stop_(std::move(stop)) {}

bool SteppedCopy::make(const std::filesystem::path& target) const {
  WholeFile copy(target);
  try {
    Count counted;
    {
      Connection original(source_, Connection::Mode::kExisting);
      requireSameDataFile(original.source().path, opened_);
      original.stopWhen(stop_);
      const Snapshot oneState(original);
      counted = countOf(original);
      if (!copyPages(original, copy)) return false;
    }
    copy.flush();
    Connection copied({copy.path(), source_.password}, Connection::Mode::kExisting);
    copied.stopWhen(stop_);
    requireSame(copied, counted);
  } catch (const StoreError&) {
    if (stop_()) return false;
    throw;
  }
  removeLogs(target);
  copy.finish();
  return true;
}

// The snapshot keeps all steps to one state of the file: without it each write of the sale would
// start the copy again.
bool SteppedCopy::copyPages(Connection& original, WholeFile& copy) const {
  Connection written({copy.path(), source_.password}, Connection::Mode::kExisting);
  // Little is held back, and so little waits for the disk at the end.
  written.runScript("pragma cache_size = -256; pragma synchronous = off");
  sqlite3* to = written.engine_.get();
  std::unique_ptr<sqlite3_backup, int (*)(sqlite3_backup*)> backup(
      sqlite3_backup_init(to, "main", original.engine_.get(), "main"), sqlite3_backup_finish);
  if (!backup) check(to, sqlite3_errcode(to));
  int code = SQLITE_OK;
  while ((code = sqlite3_backup_step(backup.get(), kStepPages)) == SQLITE_OK) {
    copy.flush();
    if (stop_()) return false;
  }
  backup.reset();
  check(to, code);
  return true;
}

void SteppedCopy::requireSame(Connection& copied, const Count& original) {
  requireShopFile(copied);
  Rows rows = copied.query("pragma integrity_check(1)");
  if (!rows.next() || rows.text("integrity_check") != "ok")
    throw StoreError(
        Words::tr("备份出来的账目有损坏，没有采用。请用 tilladmin check 检查数据文件。"));
  if (countOf(copied) != original)
    throw StoreError(Words::tr("备份出来的单据数和数据文件的不一样，没有采用。"));
}
