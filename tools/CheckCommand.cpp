#include "tools/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "store/Connection.h"
#include "tools/Books.h"
#include "tools/DataFileOptions.h"

namespace {

constexpr int kFaultsFound = 1;

void check(const DataFileOptions& file, Console& console, int& exitCode) {
  const std::unique_ptr<Connection> connection = openDataFile(file.source());
  Books books(*connection, [&console](const std::string& fault) { console.out << fault << '\n'; });
  const BooksSummary found = books.check();
  if (found.faults > 0) {
    console.out << "发现 " << found.faults << " 处问题。\n";
    exitCode = kFaultsFound;
    return;
  }
  console.out << "账目正确：单据 " << found.bills << " 张（其中未结 " << found.openBills
              << " 张），商品行 " << found.lines << " 行，退货 " << found.returns << " 笔，库存 "
              << found.stockRows << " 条。\n";
}

}  // namespace

void addCheckCommand(CLI::App& app, Console& console, int& exitCode) {
  CLI::App* command = app.add_subcommand(
      "check", "检查数据文件是否完好、账目是否相符；有问题时逐条列出，退出码不为 0");
  const auto file = std::make_shared<DataFileOptions>();
  file->addTo(*command);
  command->callback([file, &console, &exitCode] { check(*file, console, exitCode); });
}
