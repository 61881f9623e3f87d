#include "tools/DataFileOptions.h"

#include <CLI/CLI.hpp>

#include "base/Words.h"
#include "saleslib/ShopLink.h"
#include "shop/Refusal.h"
#include "store/Connection.h"

CLI::Option* DataFileOptions::addTo(CLI::App& command) {
  CLI::Option* file =
      command
          .add_option(Words::tr("数据文件"), path, Words::tr("店里的数据文件，例如 data/POS.mdb"))
          ->required();
  addPasswordTo(command);
  return file;
}

void DataFileOptions::addPasswordTo(CLI::App& command) {
  CLI::Option* given =
      command.add_option("--file-password", password,
                         Words::tr("数据文件的密码；不写用内置的，空的表示没有密码。供脚本使用：写"
                                   "在命令行上，同机的人在进程列表里看得到"));
  command.add_flag("--ask-file-password", asks, Words::tr("从终端或标准输入读数据文件的密码"))
      ->excludes(given);
}

DataSource DataFileOptions::source(Console& console) const {
  return {path, asks ? askPassword(console, Words::tr("数据文件的密码：")) : password};
}

DataSource DataFileOptions::newSource(Console& console) const {
  return {path, asks ? askNewPassword(console, Words::tr("数据文件的密码：")) : password};
}

std::unique_ptr<Connection> DataFileOptions::open(Console& console) const {
  return open(source(console), console);
}

std::unique_ptr<Connection> DataFileOptions::openOffice(Console& console) const {
  std::unique_ptr<Connection> connection = open(console);
  requireOffice(*connection);
  return connection;
}

void DataFileOptions::requireOffice(Connection& connection) {
  if (!shopLink(connection)) return;
  throw Refusal(Words::tr(
      "这是连着服务器的收银机。商品、会员、操作员和店铺参数在办公室的数据文件里改，再用 tilladmin "
      "shop publish 发到各台收银机。"));
}

std::unique_ptr<Connection> DataFileOptions::open(const DataSource& source, Console& console) {
  std::unique_ptr<Connection> connection = openDataFile(source);
  ConnectionUser tool;
  tool.clock = console.clock;
  connection->setUser(std::move(tool));
  return connection;
}
