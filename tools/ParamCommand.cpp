#include "tools/ParamCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "base/Words.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/MasterTables.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"
#include "tools/DataFileOptions.h"

namespace {

struct Options {
  DataFileOptions file;
  std::vector<std::string> settings;
};

void list(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  ClsSysParam parameters;
  parameters.Conn(*connection);
  for (const ClsSysParam::Parameter& parameter : parameters.list()) {
    console.out << "# " << parameter.meaning << '\n'
                << parameter.name << '=' << parameter.value
                << (parameter.isSet ? "" : Words::tr("\t（没有设置，这是默认值）")) << '\n';
  }
}

void setOne(ClsSysParam& parameters, const std::string& setting) {
  const std::size_t equals = setting.find('=');
  if (equals == std::string::npos) {
    throw Refusal(Words::tr("要写成 名称=值，写的是“%1”，什么也没有设置。", setting));
  }
  const std::string reason = parameters.set(setting.substr(0, equals), setting.substr(equals + 1));
  if (!reason.empty()) throw Refusal(Words::tr("%1：%2", setting, reason));
}

void set(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  for (const std::string& setting : options.settings) {
    if (!isOfTill(setting.substr(0, setting.find('='))))
      DataFileOptions::requireOffice(*connection);
  }
  Transaction transaction(*connection);
  ClsSysParam parameters;
  parameters.Conn(*connection);
  for (const std::string& setting : options.settings) setOne(parameters, setting);
  transaction.commit();
  console.out << Words::tr("已设置 %1 个参数", options.settings.size()) << '\n';
}

void unset(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  DataFileOptions::requireOffice(*connection);
  Transaction transaction(*connection);
  ClsSysParam parameters;
  parameters.Conn(*connection);
  for (const std::string& name : options.settings) {
    if (const std::string reason = parameters.unset(name); !reason.empty())
      throw Refusal(Words::tr("%1：%2", name, reason));
  }
  transaction.commit();
  console.out << Words::tr("%1 个参数不再设置，用默认值", options.settings.size()) << '\n';
}

std::string parametersExplained() {
  std::string text = Words::tr("参数：\n");
  const std::vector<ClsSysParam::Parameter> parameters = ClsSysParam().list();
  std::size_t longest = 0;
  for (const auto& each : parameters) longest = std::max(longest, each.name.size());
  for (const auto& each : parameters) {
    text +=
        "  " + each.name + std::string(longest + 2 - each.name.size(), ' ') + each.meaning + "\n";
  }
  return text;
}

}  // namespace

void addParamCommand(CLI::App& app, Console& console) {
  CLI::App* parent = app.add_subcommand("param", Words::tr("店铺参数：列出、设置、取消设置"));
  parent->require_subcommand(1);
  const auto options = std::make_shared<Options>();
  CLI::App* listing =
      parent->add_subcommand("list", Words::tr("列出全部参数；# 开头的一行说明下一行的参数"));
  options->file.addTo(*listing);
  listing->callback([options, &console] { list(*options, console); });
  CLI::App* setting = parent->add_subcommand("set", Words::tr("设置参数（全部成功才算数）"));
  setting->footer(parametersExplained());
  options->file.addTo(*setting);
  setting->add_option(Words::tr("参数名=值"), options->settings, Words::tr("可以写几个"))
      ->required();
  setting->callback([options, &console] { set(*options, console); });
  CLI::App* unsetting =
      parent->add_subcommand("unset", Words::tr("取消参数的设置，用默认值（全部成功才算数）"));
  options->file.addTo(*unsetting);
  unsetting->add_option(Words::tr("参数名"), options->settings, Words::tr("可以写几个"))
      ->required();
  unsetting->callback([options, &console] { unset(*options, console); });
}
