#include "tools/BackupCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "base/Words.h"
#include "store/Connection.h"
#include "store/DataFileCopy.h"
#include "tools/DataFileOptions.h"

namespace {

struct Options {
  DataFileOptions file;
  std::string target;
};

void backUp(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  backUpDataFile(*connection, options.target);
  console.out << Words::tr("已备份到 %1，并已打开检查过。", options.target) << '\n';
}

}  // namespace

void addBackupCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "backup", Words::tr("备份数据文件并打开检查；收款程序开着也可以。备份的密码与数据文件相同"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command
      ->add_option(Words::tr("目标"), options->target, Words::tr("备份到这个文件；已有的会被替换"))
      ->required();
  command->callback([options, &console] { backUp(*options, console); });
}
