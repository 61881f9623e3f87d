#include "tools/CreateCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/DemoShop.h"

namespace {

struct Options {
  DataFileOptions file;
  bool demo = false;
};

// A file that could not be filled is taken away again: the next attempt finds nothing in its way.
void fillOrRemove(const Options& options, Console& console) {
  std::unique_ptr<Connection> connection = createDataFile(options.file.newSource(console));
  const std::filesystem::path path = connection->source().path;
  try {
    fillDemoShop(*connection, console.clock);
  } catch (...) {
    connection.reset();
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    throw;
  }
}

void create(const Options& options, Console& console) {
  if (options.demo) {
    fillOrRemove(options, console);
  } else {
    createDataFile(options.file.newSource(console));
  }
  console.out << "已建立" << (options.demo ? "演示店铺的" : "") << "数据文件 " << options.file.path
              << '\n';
}

}  // namespace

void addCreateCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand("create", "建立新的数据文件（不会覆盖已有的文件）");
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_flag("--demo", options->demo, "填入演示店铺：商品、会员、操作员和小票文字");
  command->callback([options, &console] { create(*options, console); });
}
