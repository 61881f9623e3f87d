#include "backups/BackupRun.h"

#include <sys/stat.h>

#include <algorithm>
#include <exception>

#include "backups/BackupFolder.h"
#include "backups/Generations.h"
#include "backups/MediumCopy.h"
#include "base/PrivateFile.h"
#include "base/SystemFault.h"
#include "base/Words.h"
#include "store/SteppedCopy.h"
#include "store/StoreError.h"

namespace fs = std::filesystem;

namespace {

/// What is left to the sale on the disk that it shares with its backups.
constexpr std::uintmax_t kRoomForSale = std::uintmax_t{256} << 20;

void makeFolder(const fs::path& folder) {
  std::error_code fault;
  if (fs::create_directory(folder, fault)) static_cast<void>(makePrivate(folder));
  if (fault)
    throw StoreError(
        Words::tr("不能新建备份文件夹 %1：%2", folder.string(), fileFault(fault.value())));
}

void requireRoom(const fs::path& dataFile) {
  std::error_code fault;
  std::uintmax_t needed = kRoomForSale;
  for (const char* part : {"", "-wal"}) {
    const std::uintmax_t size = fs::file_size(dataFile.string() + part, fault);
    if (!fault) needed += size;
  }
  const fs::space_info disk = fs::space(dataFile.parent_path(), fault);
  if (!fault && disk.available < needed)
    throw StoreError(Words::tr("磁盘剩余空间不够再放一份账目，没有备份。请清理磁盘。"));
}

void requireMedium(const fs::path& medium, const fs::path& dataFile) {
  struct stat there {
  }, here{};
  if (stat(medium.c_str(), &there) != 0 || !S_ISDIR(there.st_mode))
    throw StoreError(Words::tr("备份盘没有接上，找不到文件夹 %1。", medium.string()));
  if (stat(dataFile.c_str(), &here) != 0 || there.st_dev == here.st_dev)
    throw StoreError(Words::tr("备份盘没有接上：%1 和数据文件在同一个磁盘上。", medium.string()));
}

bool contains(const std::vector<Date>& dates, const Date& date) {
  return std::ranges::find(dates, date) != dates.end();
}

/// Does with the folder what `make` does for today's backup, unless it is there. True when it has
/// been made.
template <class Make>
bool keepToday(const BackupFolder& folder, const BackupOrder& order, bool anew, const Make& make) {
  const std::vector<Date> dates = folder.dates();
  if (contains(dates, order.today) && !anew) return false;
  if (!mayMakeGeneration(dates, order.today))
    throw StoreError(Words::tr("已经有日期更晚的备份 %1，请检查电脑的日期；日期没错时请把它移走。",
                               folder.file(dates.front()).string()));
  if (!make(folder.file(order.today))) return false;
  folder.prune(order.today);
  return true;
}

/// What `step` throws, as a text.
template <class Step>
std::string faultOf(const Step& step) {
  try {
    step();
    return {};
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace

BackupResult runBackup(const BackupOrder& order, BackupFlags& flags) {
  const auto stop = [&flags] { return flags.stop.load(); };
  const BackupFolder here = BackupFolder::beside(order.shop.path);
  bool isNew = false;
  BackupResult result;
  result.fault = faultOf([&] {
    makeFolder(here.path());
    isNew = keepToday(here, order, order.anew, [&](const fs::path& target) {
      requireRoom(order.shop.path);
      return SteppedCopy(order.shop, order.opened, stop).make(target);
    });
  });
  result.here = here.dates();
  flags.hasLeftShop = true;
  if (order.medium.empty()) return result;
  const BackupFolder there(order.medium, order.shop.path);
  result.mediumFault = faultOf([&] {
    requireMedium(order.medium, order.shop.path);
    if (contains(result.here, order.today))
      keepToday(there, order, isNew, [&](const fs::path& target) {
        return copyToMedium(here.file(order.today), target, stop);
      });
    result.onMedium = there.dates();
  });
  return result;
}
