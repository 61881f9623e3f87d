#include "tools/RestoreCommand.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/DataFileRestore.h"
#include "tools/BackupChoice.h"
#include "tools/DataFileOptions.h"

namespace {

struct Options {
  std::vector<std::string> files;  ///< a backup, if one was named, and the data file
  std::string from;
  DataFileOptions file;
};

std::string markOf(const DateTime& time) {
  std::array<char, 32> mark{};
  std::snprintf(mark.data(), mark.size(), "%04d%02d%02d-%02d%02d%02d", time.date.year,
                time.date.month, time.date.day, time.hour, time.minute, time.second);
  return mark.data();
}

void restore(Options& options, Console& console) {
  if (options.files.size() > 2) throw CLI::ExtrasError({options.files.back()});
  options.file.path = options.files.back();
  const DataSource file = options.file.source(console);
  const std::filesystem::path backup = options.files.size() > 1
                                           ? std::filesystem::path(options.files.front())
                                           : askForBackup(file, options.from, console);
  const std::filesystem::path aside =
      restoreDataFile(backup, file, "old-" + markOf(console.clock()));
  const std::unique_ptr<Connection> restored = options.file.open(file, console);
  Journal(*restored).note(EntryKind::kRestored, {},
                          {{"backup", backup.string()}, {"old", aside.string()}});
  skipUnknownNumbers(*restored);
  console.out << Words::tr("已用 %1 恢复 %2。", backup.string(), options.file.path) << '\n';
  if (!aside.empty()) console.out << Words::tr("原来的文件留在 %1。", aside.string()) << '\n';
}

}  // namespace

void addRestoreCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "restore", Words::tr("检查备份，用它代替数据文件；原来的文件改名留下。收款程序必须先退出"));
  const auto options = std::make_shared<Options>();
  command
      ->add_option(
          Words::tr("文件"), options->files,
          Words::tr(
              "备份和数据文件；只写数据文件时，列出它旁边 backups 文件夹里每天的备份，从中选一个"))
      ->required();
  options->file.addPasswordTo(*command);
  command->add_option("--from", options->from, Words::tr("列出这个文件夹里的备份，例如备份盘上的"));
  command->callback([options, &console] { restore(*options, console); });
}
