#include "tools/ImportCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "base/Text.h"
#include "base/Words.h"
#include "shop/GoodsField.h"
#include "shop/Importer.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"
#include "tools/DataFileOptions.h"
#include "tools/GoodsImportCommand.h"
#include "tools/ParserTexts.h"

namespace {

struct Options {
  DataFileOptions file;
  std::vector<std::string> tables;
  std::vector<std::string> csvs;
  bool replacesAccounts = false;
  GoodsImportOptions goods;
};

struct List {
  std::string table;
  std::string csv;
};

/// Each table with its file, in the order in which their rows refer to one another.
std::vector<List> listsOf(const Options& options) {
  if (options.tables.size() != options.csvs.size()) {
    throw Refusal(Words::tr("有 %1 个文件，却写了 %2 个 --table；一个 --table 配一个文件。",
                            options.csvs.size(), options.tables.size()));
  }
  std::vector<List> lists;
  for (const std::string& name : tableNames()) {
    for (std::size_t place = 0; place < options.tables.size(); ++place) {
      if (equalIgnoringCase(options.tables[place], name))
        lists.push_back({name, options.csvs[place]});
    }
  }
  return lists;
}

/// The headings of the shop's own sheets.
std::string goodsHeadings() {
  std::string headings;
  for (std::size_t field = 0; field < kGoodsFields; ++field) {
    headings.append(field == 0 ? "" : " ").append(headingOf(static_cast<GoodsField>(field)));
  }
  return headings;
}

std::ifstream opened(const std::string& csv) {
  if (!std::filesystem::is_regular_file(csv)) {
    throw Refusal(Words::tr("没有这个文件，或者不是普通文件：%1", csv));
  }
  std::ifstream text(csv, std::ios::binary);
  if (!text) throw Refusal(Words::tr("文件读不出来：%1", csv));
  return text;
}

Imported importList(Connection& connection, const List& list, const Options& options,
                    Console& console) {
  std::ifstream text = opened(list.csv);
  Importer importer(
      connection, tableNamed(list.table, console.clock()),
      [&console](std::int64_t rows, double part) {
        console.err << Words::tr("已读 %1 行（%2%）", rows, static_cast<int>(part * 100))
                    << std::endl;
      },
      options.replacesAccounts ? Importer::Accounts::kReplace : Importer::Accounts::kKeep);
  try {
    return importer.run(text);
  } catch (const Failure& failure) {
    if (options.csvs.size() == 1) throw;
    throw Refusal(Words::tr("%1：%2", list.csv, failure.what()));
  }
}

void print(const Imported& imported, const List& list, Console& console) {
  for (const std::string& doubt : imported.doubts) console.err << list.csv << " " << doubt << '\n';
  const auto more = imported.doubtCount - static_cast<std::int64_t>(imported.doubts.size());
  if (more > 0) console.err << Words::tr("……还有 %1 行也要看一看。", more) << '\n';
  console.out << Words::tr("已导入 %1：新增 %2 行，更新 %3 行", list.table, imported.added,
                           imported.updated)
              << '\n';
  if (imported.keptAccounts && imported.updated > 0) {
    console.out << Words::tr(
                       "已有会员的余额、密码、累计消费和积分没有动；要照文件改，加上 "
                       "--replace-accounts。")
                << '\n';
  }
}

/// Stock that was counted is a till's own news: it goes up.
bool isCount(const std::vector<List>& lists) {
  return std::ranges::all_of(
      lists, [](const List& list) { return equalIgnoringCase(list.table, "stock"); });
}

void importTables(const Options& options, Console& console) {
  const std::vector<List> lists = listsOf(options);
  for (const List& list : lists) opened(list.csv);  // before the first is read for minutes
  const std::unique_ptr<Connection> connection = options.file.open(console);
  if (!isCount(lists)) DataFileOptions::requireOffice(*connection);
  Transaction all(*connection);
  std::vector<Imported> done;
  for (const List& list : lists) done.push_back(importList(*connection, list, options, console));
  all.commit();
  for (std::size_t place = 0; place < lists.size(); ++place) {
    print(done[place], lists[place], console);
  }
}

int importSheet(const Options& options, Console& console) {
  if (options.csvs.size() != 1)
    throw Refusal(Words::tr("商品表一次导入一个文件；几个文件要各配一个 --table。"));
  GoodsImportOptions goods = options.goods;
  goods.sheet = options.csvs.front();
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  return importGoodsSheet(*connection, goods, console);
}

void addGoodsOptions(CLI::App& command, GoodsImportOptions& goods) {
  command.add_flag("--yes", goods.isConfirmed, Words::tr("商品表：不问，直接写入"));
  command.add_option("--mapping", goods.mapping, Words::tr("商品表：用存过的列名对应"));
  command.add_option("--save-mapping", goods.savedMapping,
                     Words::tr("商品表：把列名对应存成这个名字"));
  command
      .add_option("--column", goods.columns,
                  Words::tr("商品表：列名=字段，写明一列是什么；字段空着就不读。可以写几次"))
      ->allow_extra_args(false);
}

}  // namespace

void addImportCommand(CLI::App& app, Console& console, int& exitCode) {
  CLI::App* command = app.add_subcommand(
      "import", Words::tr("从表格文件导入商品，或者从 CSV 文件导入一张表；全部成功才算数"));
  command->footer(
      Words::tr("不写 --table，文件就是一张商品表（.xlsx 或 .csv），第一行是列名：\n"
                "  %1\n"
                "别的列名会猜，先给您看；写入以前先列出新增、改动、不变和不能导入的行，问过才写。\n"
                "  tilladmin import 数据文件 商品.xlsx\n"
                "不是在终端上，又没有写 --yes，就只列出，什么也不写入，退出码是 3。\n\n"
                "写了 --table 时，第一行是列名，各列用英文逗号分开，编码 UTF-8 或 "
                "GBK。主键已有的行更新，没有的新增；文件里没有的列不动。\n"
                "有一行不对就什么也不导入，并说明是第几行、错在哪里。条码的商品编码要在 spda "
                "里，没有时一起导入：\n"
                "  tilladmin import 数据文件 --table spda 商品.csv --table tmda 条码.csv\n\n"
                "%2",
                goodsHeadings(), tablesExplained()));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command
      ->add_option(Words::tr("文件"), options->csvs,
                   Words::tr("要导入的文件；有 --table 时各配一个"))
      ->required();
  command
      ->add_option("--table", options->tables,
                   Words::tr("导入到哪张表：SP_LB、spda、tmda、member 或 stock；可以写几次"))
      ->check(oneOf(tableNames()))
      ->allow_extra_args(false);
  command->add_flag(
      "--replace-accounts", options->replacesAccounts,
      Words::tr(
          "已有会员的余额、密码、累计消费和积分也照文件改（平时不动，免得把花掉的钱又加回来）"));
  addGoodsOptions(*command, options->goods);
  command->callback([options, &console, &exitCode] {
    if (options->tables.empty()) {
      exitCode = importSheet(*options, console);
    } else {
      importTables(*options, console);
    }
  });
}
