#include "tools/SetupCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

#include "base/FileName.h"
#include "base/Words.h"
#include "shop/NewShop.h"
#include "shop/Refusal.h"
#include "tools/DataFileOptions.h"
#include "tools/SetupQuestions.h"

namespace {

void setUp(const DataFileOptions& file, Console& console) {
  if (std::filesystem::exists(findIgnoringCase(file.path)))
    throw Refusal(Words::tr("已经有这个文件，不会覆盖：%1", file.path));
  const DataSource target = file.newSource(console);
  makeShop(askForShop(console), target, console.clock);
  console.out
      << Words::tr(
             "店铺已建好：%"
             "1\n打印机、钱箱、客显在收银程序的收银设置里选，颜色在功能菜单的颜色设置里选。",
             file.path)
      << '\n';
}

}  // namespace

void addSetupCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "setup", Words::tr("开店：一问一答，建立新的数据文件（不会覆盖已有的文件）"));
  const auto file = std::make_shared<DataFileOptions>();
  file->addTo(*command);
  command->callback([file, &console] { setUp(*file, console); });
}
