#include "tools/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "base/NumberText.h"
#include "base/Words.h"
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
  console.out << Words::tr("商品查找索引不对，已重建。") << '\n';
}

// Not a fault: such a record loaded nothing, and the books go without it.
void nameIncompleteTopUps(Connection& connection, Console& console) {
  for (const IncompleteTopUp& each : TopUpBooks(connection).incomplete()) {
    const char* text = each.isReported
                           ? Words::mark(
                                 "充值 %1 没有完成，卡内余额没有改变：卡号 %2，付款 %3，充值 "
                                 "%4（已提示过收银员）。")
                           : Words::mark(
                                 "充值 %1 没有完成，卡内余额没有改变：卡号 %2，付款 %3，充值 "
                                 "%4；下次打开收银窗口时提示收银员。");
    console.out << Words::tr(text, each.id, each.topUp.cardNumber, twoDecimals(each.topUp.paid),
                             twoDecimals(each.topUp.credited))
                << '\n';
  }
}

void check(const Options& options, Console& console, int& exitCode) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  if (options.repair) repairIndex(*connection, console);
  Books books(
      *connection, [&console](const std::string& fault) { console.out << fault << '\n'; },
      console.clock);
  books.setRemarks([&console](const std::string& remark) {
    console.out << Words::tr("请看一看：%1。", remark) << '\n';
  });
  books.setProgress([&console](double part) {
    console.err << Words::tr("已检查 %1%", static_cast<int>(part * 100)) << std::endl;
  });
  const BooksSummary found = books.check();
  if (found.paidBills > 0) {
    console.out << Words::tr("有 %1 张单据已收款、还没存完：正在结账，或者下次打开收银窗口时补存。",
                             found.paidBills)
                << '\n';
  }
  nameIncompleteTopUps(*connection, console);
  if (found.faults > 0) {
    console.out << Words::tr("发现 %1 处问题。", found.faults) << '\n';
    exitCode = kFaultsFound;
    return;
  }
  const char* text =
      found.entries > 0
          ? Words::mark(
                "账目正确：单据 %1 张（其中未结 %2 张），商品行 %3 行，退货 %4 笔，库存 %5 条，"
                "日志 %6 条。")
          : Words::mark(
                "账目正确：单据 %1 张（其中未结 %2 张），商品行 %3 行，退货 %4 笔，库存 %5 "
                "条。");
  console.out << Words::tr(text, found.bills, found.openBills, found.lines, found.returns,
                           found.stockRows, found.entries)
              << '\n';
}

}  // namespace

void addCheckCommand(CLI::App& app, Console& console, int& exitCode) {
  CLI::App* command = app.add_subcommand(
      "check", Words::tr("检查数据文件是否完好、账目是否相符；有问题时逐条列出，退出码不为 0"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_flag(
      "--repair", options->repair,
      Words::tr("商品查找索引与商品资料不符时先重建它（账目不会改动；收款程序最好先关掉）"));
  command->callback([options, &console, &exitCode] { check(*options, console, exitCode); });
}
