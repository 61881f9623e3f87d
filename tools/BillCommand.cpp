#include "tools/BillCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>

#include "base/Words.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/BillDate.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"

namespace {

struct Options {
  DataFileOptions file;
  std::int64_t number = 0;
  std::string to;
};

void redate(const Options& options, Console& console) {
  const std::optional<DateTime> to = parseDateTime(options.to);
  if (!to && !options.to.empty()) {
    throw Refusal(Words::tr("--to 要写成 2026-11-22 09:05:03 的样子，写的是“%1”。", options.to));
  }
  const std::unique_ptr<Connection> connection = options.file.open(console);
  const Redated done = redateBill(*connection, options.number, to, console.clock());
  console.out << Words::tr("单据 %1 的时间 %2 已改成 %3，商品行跟着改了 %4 行", options.number,
                           storedText(done.from), storedText(done.to), done.lines)
              << '\n';
}

}  // namespace

void addBillCommand(CLI::App& app, Console& console) {
  CLI::App* parent = app.add_subcommand("bill", Words::tr("单据：改正电脑时间错误时留下的日期"));
  parent->require_subcommand(1);
  CLI::App* command = parent->add_subcommand(
      "redate", Words::tr("改正一张单据的时间；只改时间还没有到、或者与商品行相差一天以上的"));
  command->footer(
      Words::tr("收银窗口说“电脑系统时间错误！”时，先看电脑的日期对不对。电脑对了、单据的日期错了，"
                "才用这个命令。"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option(Words::tr("流水号"), options->number, Words::tr("单据的流水号，小票上有"))
      ->required()
      ->check(wholeNumber(1, INT32_MAX));
  command->add_option(
      "--to", options->to,
      Words::tr("改成这个时间，例如 \"2026-11-22 09:05:03\"；不写就用第一行商品的时间"));
  command->callback([options, &console] { redate(*options, console); });
}
