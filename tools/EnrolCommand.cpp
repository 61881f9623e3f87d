#include "tools/EnrolCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "base/Words.h"
#include "saleslib/ShopLink.h"
#include "server/Joining.h"
#include "store/Connection.h"
#include "store/DataFileLock.h"
#include "tools/DataFileOptions.h"

namespace {

struct Options {
  DataFileOptions file;
  JoinRequest request;
};

void enrol(const Options& options, Console& console) {
  const DataSource source = options.file.source(console);
  const DataFileLock closed(source.path);
  const std::unique_ptr<Connection> connection = DataFileOptions::open(source, console);
  if (options.request.code.empty()) {
    moveServer(*connection, options.request.host);
    console.out << Words::tr("服务器的地址改成了 %1。", options.request.host) << '\n';
    return;
  }
  requireJoinable(*connection);
  const JoinedShop joined = joinAtServer(options.request);
  joinShop(*connection, joined.link, joined.highestBill);
  console.out << Words::tr("这台收银机加入了店铺，机号 %1。", joined.link.till) << '\n';
}

}  // namespace

void addEnrolCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "enrol", Words::tr("这台收银机加入有服务器的店；收银程序必须先退出，以后一直记日志"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command
      ->add_option(
          Words::tr("服务器"), options->request.host,
          Words::tr("服务器的名称或地址，和它的证书上写的一样；有备机的写两个，用逗号隔开"))
      ->required();
  command->add_option(
      Words::tr("加入码"), options->request.code,
      Words::tr("tilladmin shop add-till 给出的；已经加入的不写，只改服务器的地址"));
  command->add_option("--port", options->request.port, Words::tr("服务器的端口，一般是 5432"));
  command->add_option("--database", options->request.database,
                      Words::tr("服务器上的数据库，一般是 till"));
  command->callback([options, &console] { enrol(*options, console); });
}
