#include "tools/ImportCommand.h"

#include <CLI/CLI.hpp>
#include <fstream>
#include <memory>
#include <string>

#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/Importer.h"
#include "tools/Refusal.h"

namespace {

struct Options {
  DataFileOptions file;
  std::string table;
  std::string csv;
};

void import(const Options& options, Console& console) {
  if (!std::filesystem::is_regular_file(options.csv)) {
    throw Refusal("没有这个文件，或者不是普通文件：" + options.csv);
  }
  std::ifstream text(options.csv, std::ios::binary);
  if (!text) throw Refusal("文件读不出来：" + options.csv);
  const std::unique_ptr<Connection> connection = openDataFile(options.file.source(console));
  Importer importer(*connection, tableNamed(options.table, console.clock()),
                    [&console](std::int64_t rows, double part) {
                      console.err << "已读 " << rows << " 行（" << static_cast<int>(part * 100)
                                  << "%）" << std::endl;
                    });
  const Imported imported = importer.run(text);
  console.out << "已导入 " << options.table << "：新增 " << imported.added << " 行，更新 "
              << imported.updated << " 行\n";
}

}  // namespace

void addImportCommand(CLI::App& app, Console& console) {
  CLI::App* command =
      app.add_subcommand("import", "从 CSV 文件导入商品、类别、会员或库存，全部成功才算数");
  command->footer(
      "第一行是列名，编码 UTF-8 或 GBK。主键已有的行更新，没有的新增；文件里没有的列不动。\n"
      "主键：tmda 是 sptm 和 spbm，spda 是 f_spbm，SP_LB 是 SPLB_ID，member 是 bh，stock 是 "
      "spbm。\n"
      "有一行不对就什么也不导入，并说明是第几行、错在哪里。");
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option("CSV", options->csv, "要导入的文件")->required();
  command->add_option("--table", options->table, "导入到哪张表")
      ->required()
      ->check(CLI::IsMember(tableNames(), CLI::ignore_case));
  command->callback([options, &console] { import(*options, console); });
}
