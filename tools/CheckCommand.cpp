#include "tools/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "base/NumberText.h"
#include "saleslib/TopUpBooks.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "tools/Books.h"
#include "tools/DataFileOptions.h"

namespace {

constexpr int kFaultsFound = 1;

struct Options {
  DataFileOptions file;
  bool repair = false;
};

void repairIndex(Connection& connection, Console& console) {
  if (fragmentIndexIsRight(connection)) return;
  rebuildFragmentIndex(connection);
  console.out << "商品查找索引不对，已重建。\n";
}

// Not a fault: such a record loaded nothing, and the books go without it.
void nameIncompleteTopUps(Connection& connection, Console& console) {
  for (const IncompleteTopUp& each : TopUpBooks(connection).incomplete()) {
    console.out << "充值 " << each.id << " 没有完成，卡内余额没有改变：卡号 "
                << each.topUp.cardNumber << "，付款 " << twoDecimals(each.topUp.paid) << "，充值 "
                << twoDecimals(each.topUp.credited)
                << (each.isReported ? "（已提示过收银员）。\n"
                                    : "；下次打开收银窗口时提示收银员。\n");
  }
}

void check(const Options& options, Console& console, int& exitCode) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  if (options.repair) repairIndex(*connection, console);
  Books books(
      *connection, [&console](const std::string& fault) { console.out << fault << '\n'; },
      console.clock);
  books.setRemarks(
      [&console](const std::string& remark) { console.out << "请看一看：" << remark << "。\n"; });
  books.setProgress([&console](double part) {
    console.err << "已检查 " << static_cast<int>(part * 100) << "%" << std::endl;
  });
  const BooksSummary found = books.check();
  if (found.paidBills > 0) {
    console.out << "有 " << found.paidBills
                << " 张单据已收款、还没存完：正在结账，或者下次打开收银窗口时补存。\n";
  }
  nameIncompleteTopUps(*connection, console);
  if (found.faults > 0) {
    console.out << "发现 " << found.faults << " 处问题。\n";
    exitCode = kFaultsFound;
    return;
  }
  console.out << "账目正确：单据 " << found.bills << " 张（其中未结 " << found.openBills
              << " 张），商品行 " << found.lines << " 行，退货 " << found.returns << " 笔，库存 "
              << found.stockRows << " 条";
  if (found.entries > 0) console.out << "，日志 " << found.entries << " 条";
  console.out << "。\n";
}

}  // namespace

void addCheckCommand(CLI::App& app, Console& console, int& exitCode) {
  CLI::App* command = app.add_subcommand(
      "check", "检查数据文件是否完好、账目是否相符；有问题时逐条列出，退出码不为 0");
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_flag("--repair", options->repair,
                    "商品查找索引与商品资料不符时先重建它（账目不会改动；收款程序最好先关掉）");
  command->callback([options, &console, &exitCode] { check(*options, console, exitCode); });
}
