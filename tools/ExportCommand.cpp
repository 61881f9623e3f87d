#include "tools/ExportCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "base/WholeFile.h"
#include "base/Words.h"
#include "saleslib/Journal.h"
#include "shop/Exporter.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"

namespace {

namespace fs = std::filesystem;

struct Options {
  DataFileOptions file;
  std::string table;
  std::string csv;
};

std::int64_t exportToStream(Connection& connection, const Table& table, std::ostream& out) {
  const auto requireTaken = [&out] {
    if (!out) throw Refusal(Words::tr("写不下去，磁盘可能满了，导出的文件不完整。"));
  };
  const std::int64_t rows = exportTable(connection, table, [&](std::string_view piece) {
    out << piece;
    requireTaken();
  });
  out.flush();
  requireTaken();
  return rows;
}

/// Card passwords may be in it, so that nobody else may read it. A link stays one: what it leads to
/// is replaced.
std::int64_t exportToFile(Connection& connection, const Table& table, const fs::path& path) {
  std::error_code isNew;
  const fs::path real = fs::canonical(path, isNew);
  WholeFile file(isNew ? path : real);
  const std::int64_t rows =
      exportTable(connection, table, [&file](std::string_view piece) { file.append(piece); });
  file.finish();
  return rows;
}

/// A pipe or a device is written to, never replaced.
std::int64_t exportToPath(Connection& connection, const Table& table, const fs::path& path) {
  std::error_code missing;
  const fs::file_status status = fs::status(path, missing);
  if (!fs::exists(status) || fs::is_regular_file(status))
    return exportToFile(connection, table, path);
  std::ofstream out(path, std::ios::binary);
  if (!out) throw Refusal(Words::tr("不能写文件：%1", path.string()));
  return exportToStream(connection, table, out);
}

void exportTo(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  const Table table = tableNamed(options.table, console.clock());
  Journal(*connection).note(EntryKind::kExported, table.name, {{"to", options.csv}});
  if (options.csv == "-") {
    exportToStream(*connection, table, console.out);
    return;
  }
  std::error_code ignored;
  if (fs::equivalent(connection->source().path, options.csv, ignored)) {
    throw Refusal(Words::tr("不能把数据文件本身当作导出的文件。"));
  }
  const std::int64_t count = exportToPath(*connection, table, options.csv);
  console.out << Words::tr("已导出 %1：%2 行", table.name, count) << '\n';
}

}  // namespace

void addExportCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "export", Words::tr("把一张表导出为 CSV 文件（UTF-8，第一行是列名），可以再导入"));
  command->footer(tablesExplained());
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option(Words::tr("CSV文件"), options->csv, Words::tr("导出的文件；- 表示标准输出"))
      ->required();
  command
      ->add_option("--table", options->table,
                   Words::tr("导出哪张表：SP_LB、spda、tmda、member 或 stock"))
      ->required()
      ->check(oneOf(tableNames()));
  command->callback([options, &console] { exportTo(*options, console); });
}
