#include "tools/BackupChoice.h"

#include <cstddef>
#include <optional>
#include <vector>

#include "backups/BackupFolder.h"
#include "base/FileName.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"
#include "store/Connection.h"

namespace fs = std::filesystem;

namespace {

std::string contents(const DataSource& backup) {
  try {
    Connection opened(backup, Connection::Mode::kExisting);
    Rows rows =
        opened.query("select count(*) as bills, max(sell_time) as last from sell where state = 1");
    rows.next();
    const std::int64_t bills = rows.whole("bills").value();
    return bills > 0 ? Words::tr("单据 %1 张，最后一张 %2", bills, rows.text("last"))
                     : Words::tr("单据 %1 张", bills);
  } catch (const Failure& failure) {
    return failure.what();
  }
}

}  // namespace

fs::path askForBackup(const DataSource& file, const std::string& folder, Console& console) {
  const fs::path dataFile = findIgnoringCase(file.path.string());
  const BackupFolder backups =
      folder.empty() ? BackupFolder::beside(dataFile) : BackupFolder(folder, dataFile);
  const std::vector<Date> dates = backups.dates();
  if (dates.empty()) throw Refusal(Words::tr("这里没有每天的备份：%1", backups.path().string()));
  for (std::size_t i = 0; i < dates.size(); ++i)
    console.out << i + 1 << "  " << dateText(dates[i]) << "  "
                << contents({backups.file(dates[i]), file.password}) << '\n';
  console.out << Words::tr("用哪一个恢复？请输入编号，直接回车不恢复：") << std::flush;
  std::string typed;
  std::getline(console.in, typed);
  const std::optional<double> number = parseNumber(trimmed(typed));
  for (std::size_t i = 0; i < dates.size(); ++i)
    if (number == static_cast<double>(i + 1)) return backups.file(dates[i]);
  throw Refusal(Words::tr("没有选备份，什么也没有改。"));
}
