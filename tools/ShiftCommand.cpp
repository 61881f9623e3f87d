#include "tools/ShiftCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/ShiftBooks.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"

namespace {

void list(const DataFileOptions& file, Console& console) {
  const std::unique_ptr<Connection> connection = file.open(console);
  const ShiftBooks books(*connection);
  for (const std::int64_t number : books.closed(SIZE_MAX)) {
    const Shift shift = books.find(number).value();
    console.out << number << '\t' << generalText(shift.opened) << '\t' << shift.openedBy << '\t'
                << generalText(shift.closed.value()) << '\t' << shift.closedBy << '\t'
                << twoDecimals(shift.expected()) << '\t' << twoDecimals(shift.counted.sum()) << '\t'
                << twoDecimals(shift.difference()) << '\t' << shift.journalHash << '\n';
  }
  if (!console.out) throw Refusal(Words::tr("写不下去，磁盘可能满了，列得不完整。"));
}

}  // namespace

void addShiftCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "shift", Words::tr("列出结过的班，最近的在前：班次、开班、开班人、结班、结班人、应有、清点、"
                         "长短款、日志校验值，各用制表符分开"));
  const auto options = std::make_shared<DataFileOptions>();
  options->addTo(*command);
  command->callback([options, &console] { list(*options, console); });
}
