#include "tools/StaffCardCommand.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <string>

#include "base/Words.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/StaffCard.h"
#include "shop/Operators.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"

namespace {

struct Options {
  DataFileOptions file;
  std::int16_t number = 0;
  bool removed = false;
};

void run(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  const ClsOperator person = existingOperator(*connection, options.number);
  const std::string shown = std::to_string(options.number) + " " + person.Name();
  if (options.removed) {
    takeStaffCard(*connection, options.number);
    console.out << Words::tr("操作员 %1 没有员工卡了", shown) << '\n';
    return;
  }
  const std::string track = askPassword(console, Words::tr("请刷卡："));
  if (!isSwipe(track)) throw Refusal(Words::tr("这不是刷卡器读出的卡号：应以“;”开头，以“?”结尾。"));
  if (!giveStaffCard(*connection, options.number, track))
    throw Refusal(Words::tr("这张卡已经是别的操作员的员工卡了。"));
  console.out << Words::tr("操作员 %1 以后可以刷这张卡授权，不用密码", shown) << '\n';
}

}  // namespace

void addStaffCardCommand(CLI::App& parent, Console& console) {
  CLI::App* command =
      parent.add_subcommand("card", Words::tr("员工卡：刷卡代替编号和密码，给收银台上的操作授权"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option("--number", options->number, Words::tr("用户编号，1 到 32767"))
      ->required()
      ->check(wholeNumber(1, INT16_MAX));
  command->add_flag("--remove", options->removed, Words::tr("收回员工卡"));
  command->callback([options, &console] { run(*options, console); });
}
