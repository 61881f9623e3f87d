#include "demo/CheatEvidence.h"

#include <QProcess>
#include <memory>
#include <utility>
#include <vector>

#include "base/NumberText.h"
#include "saleslib/JournalKinds.h"
#include "saleslib/JournalQuery.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFileCopy.h"

namespace {

// The shifts and the people of the late shifts.
constexpr std::int64_t kFirstShift = 2, kSecondShift = 3;
constexpr std::int64_t kFirstCashier = 2, kSupervisor = 3, kSecondCashier = 4;

std::string withSingleBlanks(const std::string& text) {
  std::string single;
  for (const char each : text) {
    if (each != ' ' || !single.ends_with(' ')) single += each;
  }
  return single;
}

std::filesystem::path dataFileOf(const std::filesystem::path& shop) {
  return shop / "data" / "POS.mdb";
}

struct Run {
  int code;
  std::string output;
};

Run run(const std::filesystem::path& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QString::fromStdString(program), arguments);
  process.waitForFinished(-1);
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          process.readAll().toStdString()};
}

/// A day earlier, with its lines, so that nothing in the bill itself contradicts it. Gives the new
/// time as it is stored.
std::string redate(const std::filesystem::path& dataFile, std::int64_t bill) {
  const auto books = openDataFile({dataFile, kBuiltInPassword});
  books->run("update sell set sell_time = datetime(sell_time, '-1 day') where id = ?", bill);
  books->run(
      "update sellProducts set insert_Date = datetime(insert_Date, '-1 day') where sellId = ?",
      bill);
  Rows row = books->query("select sell_time from sell where id = ?", bill);
  return row.next() ? row.text("sell_time") : std::string();
}

std::string missingLine(bool isThere, const std::string& what) {
  return isThere ? std::string() : what + "\n";
}

}  // namespace

CheatEvidence::CheatEvidence(std::filesystem::path shop, Cheats cheats, const std::string& printed)
    : shop_(std::move(shop)), cheats_(cheats), printed_(withSingleBlanks(printed)) {}

std::string CheatEvidence::missing(const std::filesystem::path& copy) const {
  return missingOnSheets() + missingInJournal() + missingInCheck(copy);
}

/// From its number to where it is signed; empty when it was not printed.
std::string CheatEvidence::sheet(std::int64_t shift) const {
  const std::size_t begin = printed_.find("结班表 第 " + std::to_string(shift) + " 班");
  if (begin == std::string::npos) return {};
  return printed_.substr(begin, printed_.find("签名", begin) - begin);
}

std::string CheatEvidence::missingOnSheets() const {
  const auto missing = [this](std::int64_t shift, const std::string& line) {
    return missingLine(sheet(shift).find("\n" + line) != std::string::npos,
                       "班次 " + std::to_string(shift) + " 的结班表上没有：" + line);
  };
  const auto once = [](const std::string& name, Currency amount) {
    return name + " 1 笔 " + twoDecimals(amount);
  };
  return missing(kFirstShift, "不收款开钱箱 1 次") +
         missing(kFirstShift, "短款 " + twoDecimals(-cheats_.pocketed)) +
         missing(kFirstShift, once("退货退现金", cheats_.refund)) +
         missing(kSecondShift, once("撤消单据", cheats_.cancelled)) +
         missing(kSecondShift, "长款 " + twoDecimals(cheats_.cancelled));
}

// Each with who did it, and who allowed it.
std::string CheatEvidence::missingInJournal() const {
  const auto books = openDataFile({dataFileOf(shop_), kBuiltInPassword});
  const auto missing = [&](EntryKind kind, std::int64_t cashier, const std::string& touches) {
    JournalFilter filter;
    filter.kind = entryKind(kind).key;
    filter.operatorId = cashier;
    bool isThere = false;
    readJournal(*books, filter, [&](const JournalEntry& entry) {
      isThere = entry.touches == touches && entry.approver == kSupervisor;
      return !isThere;
    });
    return missingLine(isThere, std::string("日志里没有：") + entryKind(kind).name + " " + touches);
  };
  return missing(EntryKind::kDrawerOpened, kFirstCashier, "") +
         missing(EntryKind::kGoodsReturned, kFirstCashier, std::to_string(cheats_.returnedBill)) +
         missing(EntryKind::kBillCancelled, kSecondCashier, std::to_string(cheats_.cancelledBill));
}

std::string CheatEvidence::missingInCheck(const std::filesystem::path& copy) const {
  const auto books = openDataFile({dataFileOf(shop_), kBuiltInPassword});
  Rows row = books->query("select min(id) as id from sell where state = 1");
  const std::int64_t bill = row.next() ? row.whole("id").value_or(0) : 0;
  backUpDataFile(*books, copy);
  const QStringList check = {"check", QString::fromStdString(copy)};
  const Run before = run(shop_ / "tilladmin", check);
  const std::string time = redate(copy, bill);
  const Run after = run(shop_ / "tilladmin", check);
  std::filesystem::remove(copy);
  const std::size_t at = after.output.find(" " + std::to_string(bill) + " ");
  const bool isNamed = after.code == 1 && at != std::string::npos &&
                       after.output.find(time, at) != std::string::npos;
  return missingLine(before.code == 0, "检查说账目不对：" + before.output) +
         missingLine(isNamed,
                     "检查没有说出改过时间的单据 " + std::to_string(bill) + "：" + after.output);
}
