#include "app/posMod.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "app/SyncProgram.h"
#include "backups/BackupKeeper.h"
#include "base/Failure.h"
#include "base/FileName.h"
#include "base/PrivateFile.h"
#include "platform/MousePointer.h"
#include "platform/QtText.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsRights.h"
#include "saleslib/Journal.h"
#include "saleslib/ReturnBooks.h"
#include "saleslib/ShiftBooks.h"
#include "saleslib/ShopLink.h"
#include "saleslib/TopUpBooks.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFileCopy.h"
#include "store/DataFileLock.h"
#include "store/PracticeFile.h"
#include "store/Transaction.h"
#include "sync/ShopBills.h"
#include "sync/ShopCards.h"

namespace {

/// On papers, which are Chinese whatever the screens speak.
// untranslated: printed
constexpr const char* kPracticeTitle = "练习，不入账";

/// What may not be looked at is there.
bool isMissing(const std::filesystem::path& file) {
  std::error_code fault;
  return std::filesystem::status(file, fault).type() == std::filesystem::file_type::not_found;
}

}  // namespace

posMod::posMod(std::filesystem::path shopFolder, Clock presentTime)
    : folder(std::move(shopFolder)),
      clock(std::move(presentTime)),
      configIni(folder / "Config.ini"),
      ports(std::make_unique<Ports>(configIni)) {}

posMod::~posMod() = default;

DataSource posMod::dataSource() const {
  const auto configured = configIni.read("Database", "Path");
  DataSource source = configured && !configured->empty()
                          ? DataSource::parse(*configured)
                          : DataSource{"data/POS.mdb", kBuiltInPassword};
  source.path = folder / source.path;
  const std::filesystem::path found = findIgnoringCase(source.path.string());
  // What is not there is said as it was typed.
  if (std::error_code unreadable; std::filesystem::exists(found, unreadable)) source.path = found;
  return source;
}

std::string posMod::OpenDataStore() {
  DataSource source;
  try {
    source = dataSource();
    lock_ = std::make_unique<DataFileLock>(source.path);
    gConn = openDataFile(source);
    gConn->setUser({.number = [this]() -> std::optional<std::int64_t> {
                      if (!gOperator) return std::nullopt;
                      return gOperator->Id();
                    },
                    .approver = [this]() -> std::optional<std::int64_t> {
                      const auto approver = permission.approver();
                      if (!approver) return std::nullopt;
                      return approver->Id();
                    },
                    .clock = clock});
    return {};
  } catch (const Failure& failure) {
    lock_.reset();
    if (!isMissing(source.path)) return failure.what();
    return tr("%1\n已经开过店的，它可能在没有接上的磁盘上，请接上再打开。\n"
              "还没有开店的，接下来就可以开店。")
        .arg(qtText(failure.what()))
        .toStdString();
  }
}

bool posMod::lacksDataFile() const {
  return isMissing(dataSource().path);
}

std::string posMod::missingOperator() const {
  Rows rows = gConn->query(
      "select 1 from operator_rights join operators on id = operator_id where right_key = ?",
      kRightSell);
  if (rows.next()) return {};
  return tr("还没有能收银的操作员。请店主增加一位：\n"
            "tilladmin operator add %1 --number 1 --name 姓名 --right sell")
      .arg(qtText(gConn->source().path.string()))
      .toStdString();
}

std::string posMod::protectFiles() const {
  std::vector<std::filesystem::path> exposed = protectDataFile(gConn->source().path);
  std::vector<std::filesystem::path> others = {backupPath()};
  const auto configured = configIni.read("Database", "Path");
  if (configured && !DataSource::parse(*configured).password.empty())
    others.emplace_back(findIgnoringCase((folder / "Config.ini").string()));
  std::copy_if(others.begin(), others.end(), std::back_inserter(exposed),
               [](const auto& file) { return !makePrivate(file); });
  if (exposed.empty()) return {};
  QStringList names;
  for (const auto& file : exposed) names += qtText(file.string());
  return tr("下列文件别人也能读写，本程序无权更改，请让管理员收回权限：\n%1")
      .arg(names.join('\n'))
      .toStdString();
}

void posMod::start() {
  gSysParam.Conn(*gConn);
  gMemberSvc.Conn(*gConn);
  gKeyBoard.LoadSet(configIni);
  gPosSet.LoadSet(configIni);
  if (gPosSet.VMouse == 0) ShowMouse(false);
  startBackups();
  startShop();
}

void posMod::startShop() {
  const std::optional<ShopLink> link = shopLink(*gConn);
  if (!link) return;
  cards = std::make_unique<ShopCards>(*link, gConn->source().path, clock);
  bills = std::make_unique<ShopBills>(*link, gConn->source().path, clock);
  const std::filesystem::path programs = QCoreApplication::applicationDirPath().toStdString();
  sync = std::make_unique<SyncProgram>(programs / "tillsync", gConn->source());
}

// The medium is not looked at here: one that hangs must not hold the window.
void posMod::startBackups() {
  const std::string medium = configIni.read("Till", "BackupTo").value_or("");
  if (medium.empty() && configIni.read("Till", "Backups") != "1") return;
  backups = std::make_unique<BackupKeeper>(*gConn, medium.empty() ? "" : folder / medium, clock);
}

BillBooks posMod::billBooks() const {
  return {*gConn, gSysParam, clock, gOperator, cards.get(), bills.get()};
}

ReturnBooks posMod::returnBooks() const {
  return {*gConn, clock, gOperator, bills.get(), gSysParam.OfflineReturn()};
}

TopUpBooks posMod::topUpBooks() const {
  return TopUpBooks(*gConn);
}

ShiftBooks posMod::shiftBooks() const {
  return ShiftBooks(*gConn, clock, gOperator);
}

// Its receipts can be taken for the shop's by nobody.
std::unique_ptr<posMod> posMod::practice() const {
  ensure(gOperator != nullptr, "somebody practises");
  auto practice = std::make_unique<posMod>(folder, clock);
  practice->gConn = practiceDataFile(*gConn, std::filesystem::temp_directory_path());
  practice->gSysParam.Conn(*practice->gConn);
  ensure(practice->gSysParam.set("ShopName", kPracticeTitle).empty(), "a title is a shop's name");
  ensure(practice->gSysParam.set("Shifts", "0").empty(), "to practise is no shift");
  practice->gMemberSvc.Conn(*practice->gConn);
  practice->gKeyBoard = gKeyBoard;
  practice->gPosSet = gPosSet;
  practice->gPosSet.MBPort.clear();
  practice->gOperator = std::make_shared<ClsOperator>();
  practice->gOperator->Init(*practice->gConn, gOperator->Id());
  return practice;
}

Identification posMod::identification() {
  return {*gConn, gSysParam, loginBrake};
}

Journal posMod::journal() const {
  return Journal(*gConn);
}

void posMod::ShowMouse(bool show) {
  showMousePointer(show);
}

void posMod::logOff() {
  gConn->requireItsFile();
  if (!gOperator) return;
  ClsOperator leaving = *gOperator;  // whoever cannot be logged off stays as he was
  leaving.setOnline(0);
  Transaction logging(*gConn);
  leaving.Save();
  journal().note(EntryKind::kLoggedOff, std::to_string(leaving.Id()));
  logging.commit();
  gOperator.reset();
}

bool posMod::wantsBackUp() const {
  return !gConn->fileFault().empty() || gSysParam.BackupOnExit();
}

void posMod::backUp() {
  copyDataFile(*gConn, backupPath());
}

std::filesystem::path posMod::backupPath() const {
  return findIgnoringCase((folder / "data/pos3.mdb").string());
}
