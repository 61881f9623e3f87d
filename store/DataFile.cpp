#include "store/DataFile.h"

#include <string>

#include "base/Text.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/Schema.h"
#include "store/StoreError.h"

namespace {

constexpr std::string_view kPasswordMark = ";jet oledb:database password=";

// The mode is kept in the file. Set after the file is known to be a shop's: no other is changed.
void useWriteAheadLog(Connection& connection) {
  Rows rows = connection.query("pragma journal_mode = wal");
  if (!rows.next() || rows.text("journal_mode") != "wal") {
    throw StoreError("数据文件所在的磁盘不支持安全写入，请换到本机磁盘上。");
  }
}

// Another program may have written many goods. A fault here must not keep the shop closed: look-ups
// are right without it, and a damaged index is found and made new by the owner's check.
void quickenLookUps(Connection& connection) {
  try {
    updateLongFragmentIndex(connection);
  } catch (const StoreError&) {
  }
}

void removeFiles(const std::filesystem::path& path) {
  for (const char* part : {"", "-wal", "-shm", "-journal"}) {
    std::error_code ignored;
    std::filesystem::remove(path.string() + part, ignored);
  }
}

}  // namespace

// The password is the whole rest: it may hold ";", "=" and blanks.
DataSource DataSource::parse(std::string_view text) {
  const std::size_t mark = asciiLower(text).find(kPasswordMark);
  DataSource source{trimmed(text.substr(0, mark)), {}};
  if (mark != std::string_view::npos) source.password = text.substr(mark + kPasswordMark.size());
  return source;
}

std::unique_ptr<Connection> openDataFile(const DataSource& source) {
  auto connection = std::make_unique<Connection>(source, Connection::Mode::kExisting);
  upgradeSchema(*connection, false);
  useWriteAheadLog(*connection);
  quickenLookUps(*connection);
  return connection;
}

std::unique_ptr<Connection> createDataFile(const DataSource& source) {
  auto connection = std::make_unique<Connection>(source, Connection::Mode::kCreate);
  try {
    upgradeSchema(*connection, true);
    useWriteAheadLog(*connection);
  } catch (...) {
    const std::filesystem::path made = connection->source().path;
    connection.reset();
    removeFiles(made);
    throw;
  }
  return connection;
}
