#include "tools/OperatorCommand.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsRights.h"
#include "saleslib/Right.h"
#include "shop/Operators.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"
#include "tools/StaffCardCommand.h"

namespace {

struct Options {
  DataFileOptions file;
  std::int16_t number = 0;
  std::string name;
  std::optional<std::string> password;
  std::vector<std::string> rights, taken;
};

using Shared = std::shared_ptr<Options>;

std::string passwordOf(const Options& options, Console& console) {
  return options.password ? *options.password : askNewPassword(console, Words::tr("密码："));
}

std::string shownName(const Options& options, const ClsOperator& person) {
  return std::to_string(options.number) + " " + person.Name();
}

std::string rightsOf(const ClsOperator& person) {
  std::string rights;
  for (const std::string& right : shownRights(person.Rights()))
    rights.append(rights.empty() ? "" : ",").append(right);
  return rights.empty() ? "-" : rights;
}

void add(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  addOperator(*connection, {options.number, options.name, passwordOf(options, console),
                            rightsMeant(options.rights)});
  console.out << Words::tr("已增加操作员 %1 %2", options.number, trimmed(options.name)) << '\n';
  if (options.rights.empty()) {
    console.out << Words::tr(
                       "没有写 --right sell，这位操作员不能收银；要能收银，用 tilladmin operator "
                       "right --give sell 给。")
                << '\n';
  }
}

void list(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  Rows rows = connection->query("select id from operators order by id");
  while (rows.next()) {
    ClsOperator person;
    person.Init(*connection, static_cast<std::int16_t>(rows.whole("id").value()));
    console.out << person.Id() << '\t' << person.Name() << '\t' << rightsOf(person) << '\n';
  }
}

void changePassword(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  ClsOperator person = existingOperator(*connection, options.number);
  person.setPassword(passwordOf(options, console));
  person.Save();
  console.out << Words::tr("已更改操作员 %1 的密码", shownName(options, person)) << '\n';
}

void changeRights(const Options& options, Console& console) {
  if (options.rights.empty() && options.taken.empty())
    throw Refusal(Words::tr("要给什么权限写 --give，要收回什么权限写 --take。"));
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  changeRights(*connection, options.number, options.rights, options.taken);
  const ClsOperator person = existingOperator(*connection, options.number);
  console.out << Words::tr("操作员 %1 现在的权限：%2。已经登录的，下次登录时算数。",
                           shownName(options, person), rightsOf(person))
              << '\n';
}

void remove(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.openOffice(console);
  const ClsOperator person = existingOperator(*connection, options.number);
  removeOperator(*connection, options.number);
  console.out << Words::tr("已删除操作员 %1", shownName(options, person)) << '\n';
}

/// A right, with or without its limit, or all of them; the option gets the right as it is stored.
CLI::Validator aRight() {
  return CLI::Validator(
      [](std::string& typed) {
        std::string refusal = refusalOfRight(typed);
        if (const auto right = parseRight(typed)) typed = rightText(*right);
        return refusal;
      },
      "");
}

void addNumber(CLI::App& command, Options& options) {
  command.add_option("--number", options.number, Words::tr("用户编号（登录时输入），1 到 32767"))
      ->required()
      ->check(wholeNumber(1, INT16_MAX));
}

void addPassword(CLI::App& command, Options& options) {
  command.add_option("--password", options.password,
                     Words::tr("登录密码；不写就从终端或标准输入读。供脚本使用：写在命令行上，同机"
                               "的人在进程列表里看得到"));
}

void addRights(CLI::App& command, const char* name, std::vector<std::string>& rights,
               const std::string& what) {
  command.add_option(name, rights, Words::tr("%1，可以写几次：%2", what, rightsForPeople()))
      ->check(aRight())
      ->allow_extra_args(false);
}

CLI::App* addAction(CLI::App& parent, Console& console, const char* name, const std::string& help,
                    const Shared& options, void (*action)(const Options&, Console&)) {
  CLI::App* command = parent.add_subcommand(name, help);
  options->file.addTo(*command);
  command->callback([options, action, &console] { action(*options, console); });
  return command;
}

}  // namespace

void addOperatorCommand(CLI::App& app, Console& console) {
  CLI::App* parent =
      app.add_subcommand("operator", Words::tr("操作员：增加、列出、改密码、改权限、员工卡、删除"));
  parent->require_subcommand(1);
  const auto options = std::make_shared<Options>();
  CLI::App* adding = addAction(*parent, console, "add", Words::tr("增加操作员"), options, add);
  addNumber(*adding, *options);
  addPassword(*adding, *options);
  adding->add_option("--name", options->name, Words::tr("姓名"))->required();
  addRights(*adding, "--right", options->rights, Words::tr("权限"));
  addAction(*parent, console, "list", Words::tr("列出操作员：用户编号、姓名、权限"), options, list);
  CLI::App* changing =
      addAction(*parent, console, "password", Words::tr("更改密码"), options, changePassword);
  addNumber(*changing, *options);
  addPassword(*changing, *options);
  CLI::App* entitling =
      addAction(*parent, console, "right", Words::tr("给权限，收回权限"), options, changeRights);
  addNumber(*entitling, *options);
  addRights(*entitling, "--give", options->rights, Words::tr("给的权限"));
  addRights(*entitling, "--take", options->taken, Words::tr("收回的权限"));
  addNumber(*addAction(*parent, console, "remove", Words::tr("删除操作员"), options, remove),
            *options);
  addStaffCardCommand(*parent, console);
}
