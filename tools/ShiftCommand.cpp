#include "tools/ShiftCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>

#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "saleslib/ShiftBooks.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "takings/ShiftPaper.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"

namespace {

constexpr int kColumns = 32;  // of narrow paper

struct Options {
  DataFileOptions file;
  std::int64_t number = 0;  ///< 0: all are listed
};

void list(const ShiftBooks& books, std::ostream& out) {
  for (const ShiftHead& head : books.closed(SIZE_MAX)) {
    const Shift shift = books.find(head.number).value();
    out << shift.number << '\t' << generalText(shift.opened) << '\t' << shift.openedBy << '\t'
        << generalText(shift.closed.value()) << '\t' << shift.closedBy << '\t'
        << twoDecimals(shift.expected()) << '\t' << twoDecimals(shift.counted.sum()) << '\t'
        << twoDecimals(shift.difference()) << '\t' << shift.journalHash << '\n';
  }
}

void print(Connection& connection, std::int64_t number, Console& console) {
  const std::optional<Shift> shift = ShiftBooks(connection).find(number);
  if (!shift) throw Refusal(Words::tr("没有班次 %1。", number));
  if (!shift->closed) throw Refusal(Words::tr("班次 %1 还没有结班。", number));
  ClsSysParam shop;
  shop.Conn(connection);
  const ShiftPaper paper =
      shiftPaper(*shift, ShiftPaperKind::kReprint, console.clock(), shop, kColumns);
  // untranslated: stored
  Journal(connection).note(EntryKind::kReprinted, "班次 " + std::to_string(number));
  for (const std::string& line : paper.lines)
    console.out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
}

void run(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  if (options.number == 0) {
    list(ShiftBooks(*connection), console.out);
  } else {
    print(*connection, options.number, console);
  }
  if (!console.out) throw Refusal(Words::tr("写不下去，磁盘可能满了，列得不完整。"));
}

}  // namespace

void addShiftCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "shift", Words::tr("列出结过的班，最近的在前：班次、开班、开班人、结班、结班人、应有、清点、"
                         "长短款、日志校验值，各用制表符分开"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command
      ->add_option("--print", options->number,
                   Words::tr("不列，写出这一班的结班表，和收银台重打的一样"))
      ->check(wholeNumber(1, INT32_MAX));
  command->callback([options, &console] { run(*options, console); });
}
