#include "tools/ImportAccessCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "access/AccessFile.h"
#include "base/Text.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "tools/AccessPlan.h"
#include "tools/DataFileOptions.h"
#include "tools/TakeOver.h"

namespace {

struct Options {
  std::string access;
  DataFileOptions file;
  AccessChoices choices;
  bool listsOnly = false;
};

// What the other file calls its things must not command the owner's terminal.
std::string shown(const std::string& name) {
  return hasControlCharacter(name) ? Words::tr("（名字里有控制字符）") : name;
}

std::string headOf(const AccessTable& table) {
  if (table.isLinked) return Words::tr("%1  链接表，数据在别的文件里", shown(table.name));
  return Words::tr("%1  %2 行", shown(table.name), table.rows);
}

void printColumns(const AccessTable& table, const PlannedTable* planned, Console& console) {
  for (std::size_t index = 0; index < table.columns.size(); ++index) {
    const AccessColumn& column = table.columns[index];
    console.out << Words::tr("  %1（%2）", shown(column.name), column.type);
    const TargetColumn* target = planned == nullptr ? nullptr : planned->targetOf(index);
    if (target != nullptr) console.out << " -> " << target->name;
    if (planned != nullptr && target == nullptr) console.out << Words::tr(" 不带");
    console.out << '\n';
  }
}

void list(const AccessFile& file, const AccessPlan& plan, Console& console) {
  for (const AccessTable& table : file.tables()) {
    const PlannedTable* planned = plan.source(table);
    console.out << headOf(table);
    console.out << (planned == nullptr ? Words::tr("，不带")
                                       : " -> " + std::string(planned->target.name))
                << '\n';
    printColumns(table, planned, console);
    if (planned == nullptr) continue;
    for (const std::string& lacking : planned->lacking()) {
      console.out << Words::tr("  缺少 %1，用 --map 指出", lacking) << '\n';
    }
  }
}

void printSome(const std::vector<std::string>& lines, std::int64_t count, Console& console) {
  for (const std::string& line : lines) console.out << "  " << line << '\n';
  const auto more = count - static_cast<std::int64_t>(lines.size());
  if (more > 0) console.out << Words::tr("  ……还有 %1 行", more) << '\n';
}

void print(const TakenOver& done, const AccessPlan& plan, Console& console) {
  for (const TakenTable& table : done.tables) {
    console.out << Words::tr("已带来 %1 -> %2：%3 行，没有带来 %4 行", shown(table.source),
                             table.target, table.taken, table.left)
                << '\n';
    printSome(table.reasons, table.left, console);
    printSome(table.changes, table.changed, console);
  }
  for (const PlannedTable& table : plan.tables) {
    for (std::size_t index = 0; index < table.source->columns.size(); ++index) {
      if (table.targetOf(index) != nullptr) continue;
      console.out << Words::tr("没有带来的列：%1.%2", shown(table.source->name),
                               shown(table.source->columns[index].name))
                  << '\n';
    }
  }
  for (const AccessTable* table : plan.left) {
    console.out << Words::tr("没有带来的表：%1", headOf(*table)) << '\n';
  }
  for (const std::string& note : done.notes) console.out << note << '\n';
  console.out << Words::tr(
                     "操作员和店铺参数没有带来，请用 tilladmin operator 和 tilladmin param "
                     "设置。最后请用 tilladmin check 检查一遍账目。")
              << '\n';
}

void importAccess(const Options& options, Console& console) {
  const AccessFile file(options.access);
  const AccessPlan plan = planned(file, options.choices, console.clock());
  if (options.listsOnly || options.file.path.empty()) return list(file, plan, console);
  requireComplete(plan);
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  TakeOver takeOver(*connection, file, plan,
                    [&console](const std::string& table, std::int64_t rows) {
                      console.err << Words::tr("%1 已读 %2 行", shown(table), rows) << std::endl;
                    });
  print(takeOver.run(), plan, console);
}

}  // namespace

void addImportAccessCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "import-access", Words::tr("从 Access 数据文件搬家：带来商品、会员和单据，全部成功才算数"));
  command->footer(Words::tr(
      "同名的表和列互相对应（不分大小写）：SP_LB、spda、tmda、stock、member、sell、sellProducts、"
      "cardStored。名字不同的用 --map 指出。数据文件先用 tilladmin create "
      "建好，里面这些表要是空的；Access "
      "文件只读不写，只设了密码的也读得了，加密的要先去掉密码另存一份。\n"
      "没有写数据文件时只列出 Access 文件里有什么：\n"
      "  tilladmin import-access 旧.mdb\n"
      "  tilladmin import-access 旧.mdb data/POS.mdb --map 会员表=member --map 会员表.姓名=name"));
  const auto options = std::make_shared<Options>();
  command->add_option(Words::tr("Access文件"), options->access, Words::tr("旧程序的 .mdb 文件"))
      ->required();
  options->file.addTo(*command);
  command->get_option(Words::tr("数据文件"))->required(false);
  command
      ->add_option("--map", options->choices.maps,
                   Words::tr("旧表=新表，或者 旧表.旧列=新列；可以写几次"))
      ->allow_extra_args(false);
  command
      ->add_option("--skip", options->choices.skips, Words::tr("不带哪张表（新表名）；可以写几次"))
      ->allow_extra_args(false);
  command->add_flag("--list", options->listsOnly, Words::tr("只列出有哪些表和列、哪些会带来"));
  command->callback([options, &console] { importAccess(*options, console); });
}
