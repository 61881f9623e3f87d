#include "store/DataFile.h"

#include <string>

#include "base/FileName.h"
#include "base/PrivateFile.h"
#include "base/WholeFile.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "store/FileReading.h"
#include "store/FragmentIndex.h"
#include "store/Schema.h"
#include "store/StoreError.h"

namespace {

// The mode is kept in the file. Set after the file is known to be a shop's: no other is changed.
void useWriteAheadLog(Connection& connection) {
  Rows rows = connection.query("pragma journal_mode = wal");
  if (!rows.next() || rows.text("journal_mode") != "wal") {
    throw StoreError(Words::tr("数据文件所在的磁盘不支持安全写入，请换到本机磁盘上。"));
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

// A log that lies beside a missing file may hold a shop's last sales, and the engine would replay
// it into the new file.
void requireFreePlace(const std::filesystem::path& path) {
  for (const char* part : {"", "-wal", "-journal"}) {
    const std::string file = path.string() + part;
    std::error_code unreadable;
    if (std::filesystem::exists(file, unreadable))
      throw StoreError(Words::tr("已经有这个文件，不会覆盖：%1", file));
  }
}

}  // namespace

std::unique_ptr<Connection> namelessDataFile(const DataSource& target) {
  WholeFile place(target.path);
  auto building = std::make_unique<Connection>(DataSource{place.path(), target.password},
                                               Connection::Mode::kNameless);
  upgradeSchema(*building, true);
  return building;
}

std::unique_ptr<Connection> openDataFile(const DataSource& source) {
  auto connection = std::make_unique<Connection>(source, Connection::Mode::kExisting);
  upgradeSchema(*connection, false);
  useWriteAheadLog(*connection);
  quickenLookUps(*connection);
  static_cast<void>(protectDataFile(connection->source().path));  // the till says what stays open
  return connection;
}

// The engine names the answer of the shorter check like that of the longer one.
void requireSoundDataFile(const DataSource& source, Soundness depth) {
  Connection opened(source, Connection::Mode::kExisting);
  requireShopFile(opened);
  Rows rows = opened.query(depth == Soundness::kEveryPage ? "pragma quick_check(1)"
                                                          : "pragma integrity_check(1)");
  if (!rows.next() || rows.text("integrity_check") != "ok")
    throw StoreError(Words::tr("文件已损坏。"));
}

std::vector<std::filesystem::path> protectDataFile(const std::filesystem::path& path) {
  std::vector<std::filesystem::path> exposed;
  for (const char* part : {"", "-wal", "-shm", "-journal"}) {
    const std::filesystem::path file = path.string() + part;
    if (!makePrivate(file)) exposed.push_back(file);
  }
  return exposed;
}

std::unique_ptr<Connection> scratchDataFile(const std::filesystem::path& folder) {
  return namelessDataFile({folder / "scratch", ""});
}

std::unique_ptr<Connection> createDataFile(const DataSource& source,
                                           const std::function<void(Connection&)>& fill) {
  const DataSource target{findIgnoringCase(source.path.string()), source.password};
  requireFreePlace(target.path);
  WholeFile made(target.path);
  {
    const std::unique_ptr<Connection> building = namelessDataFile(target);
    fill(*building);
    FileReading(*building).appendTo(made);
  }
  if (!made.finishAsNew()) requireFreePlace(target.path);
  return openDataFile(target);
}
