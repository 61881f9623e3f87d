#include "tools/CreateCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "base/Words.h"
#include "shop/DemoShop.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"

namespace {

struct Options {
  DataFileOptions file;
  bool demo = false;
};

void create(const Options& options, Console& console) {
  createDataFile(options.file.newSource(console), [&](Connection& made) {
    if (options.demo) fillDemoShop(made, console.clock);
  });
  console.out << Words::tr(options.demo ? Words::mark("已建立演示店铺的数据文件 %1")
                                        : Words::mark("已建立数据文件 %1"),
                           options.file.path)
              << '\n';
}

}  // namespace

void addCreateCommand(CLI::App& app, Console& console) {
  CLI::App* command =
      app.add_subcommand("create", Words::tr("建立新的数据文件（不会覆盖已有的文件）"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_flag("--demo", options->demo,
                    Words::tr("填入演示店铺：商品、会员、操作员和小票文字"));
  command->callback([options, &console] { create(*options, console); });
}
