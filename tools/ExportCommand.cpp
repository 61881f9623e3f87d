#include "tools/ExportCommand.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <fstream>
#include <memory>
#include <string>

#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/Exporter.h"
#include "tools/ParserTexts.h"
#include "tools/Refusal.h"

namespace {

struct Options {
  DataFileOptions file;
  std::string table;
  std::string csv;
};

// Card passwords may be in it, so nobody else may read it, from its first byte on.
void makePrivate(const std::string& path) {
  const int file = open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
  if (file < 0) throw Refusal("不能写文件：" + path);
  struct stat kind {};
  const bool isPrivate =
      fstat(file, &kind) == 0 && (!S_ISREG(kind.st_mode) || fchmod(file, 0600) == 0);
  close(file);
  if (!isPrivate) throw Refusal("文件是别人的，不能导出到那里：" + path);
}

void exportTo(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = openDataFile(options.file.source(console));
  const Table table = tableNamed(options.table, console.clock());
  if (options.csv == "-") {
    exportTable(*connection, table, console.out);
    return;
  }
  std::error_code ignored;
  if (std::filesystem::equivalent(connection->source().path, options.csv, ignored)) {
    throw Refusal("不能把数据文件本身当作导出的文件。");
  }
  makePrivate(options.csv);
  std::ofstream out(options.csv, std::ios::binary | std::ios::trunc);
  const std::int64_t count = exportTable(*connection, table, out);
  console.out << "已导出 " << table.name << "：" << count << " 行\n";
}

}  // namespace

void addExportCommand(CLI::App& app, Console& console) {
  CLI::App* command =
      app.add_subcommand("export", "把一张表导出为 CSV 文件（UTF-8，第一行是列名），可以再导入");
  command->footer(tablesExplained());
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option("CSV文件", options->csv, "导出的文件；- 表示标准输出")->required();
  command->add_option("--table", options->table, "导出哪张表：SP_LB、spda、tmda、member 或 stock")
      ->required()
      ->check(oneOf(tableNames()));
  command->callback([options, &console] { exportTo(*options, console); });
}
