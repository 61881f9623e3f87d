#include "tools/EnrolCommand.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "base/Words.h"
#include "saleslib/ShopLink.h"
#include "server/Joining.h"
#include "store/Connection.h"
#include "store/DataFileLock.h"
#include "sync/Download.h"
#include "sync/TillLine.h"
#include "tools/DataFileOptions.h"

namespace {

constexpr std::size_t kRowsPerProgress = 50'000;

struct Options {
  DataFileOptions file;
  JoinRequest request;
};

// What does not come now, tillsync fetches beside the till.
void fetchAll(Connection& connection, Console& console) {
  TillLine server(shopLink(connection).value());
  Download download(connection, server.line(), Download::Company::kAlone);
  Download::Outcome outcome = Download::Outcome::kMore;
  for (std::size_t told = 0; outcome == Download::Outcome::kMore;) {
    outcome = download.step();
    if (download.rows() < told + kRowsPerProgress) continue;
    told = download.rows();
    console.err << Words::tr("已取 %1 行", told) << std::endl;
  }
  console.out
      << (outcome == Download::Outcome::kIdle
              ? Words::tr("店铺的商品、会员、操作员和参数已取来（%1 行）。", download.rows())
              : Words::tr("店铺的商品还没有取全（%1）；打开收银程序后接着取。", download.fault()))
      << '\n';
}

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
  fetchAll(*connection, console);
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
