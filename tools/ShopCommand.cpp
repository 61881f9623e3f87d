#include "tools/ShopCommand.h"

#include <CLI/CLI.hpp>
#include <chrono>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "base/Words.h"
#include "link/ServerLine.h"
#include "saleslib/ShopLink.h"
#include "server/Publishing.h"
#include "server/ShopServer.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"
#include "tools/ShopSales.h"

namespace {

constexpr std::int64_t kRowsPerProgress = 50'000;
constexpr int kFactsAtTills = 400;  // days: no copy of a till's file that is put back is older
constexpr int kMostDays = 36'500;
constexpr int kMostShops = 2'000;
constexpr int kLineSeconds = 90;  // a pulled wire is noticed after a minute (wal_receiver_timeout)
constexpr std::int64_t kToldClockSeconds = 120;  // what a till's clock may be off unsaid

struct Options {
  std::string server = "dbname=till";
  std::string authority;
  int till = 0, days = kFactsAtTills;
  std::optional<int> shop;
  bool again = false, rebuild = false, firstIsOff = false, mayLose = false;
  DataFileOptions file;

  ServerLine line() const { return ServerLine({{"dbname", server}}); }
};

std::string fileText(const std::string& path) {
  if (path.empty()) return {};
  std::ifstream file(path);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (text.empty()) throw Refusal(Words::tr("读不出这个文件：%1", path));
  return text;
}

void init(const Options& options, Console& console) {
  ServerLine line = options.line();
  const int steps = ShopServer(line).init(fileText(options.authority));
  console.out << (steps > 0 ? Words::tr("服务器上的店铺已建好（%1 步）", steps)
                            : Words::tr("服务器上的店铺已是最新的"))
              << '\n';
}

void upgrade(const Options& options, Console& console) {
  ServerLine line = options.line();
  const ShopServer::Steps steps = ShopServer(line).upgrade();
  console.out << (steps.before == steps.after
                      ? Words::tr("服务器上的店铺已是最新的")
                      : Words::tr("服务器上的店铺从第 %1 步升级到第 %2 步，账表已按记录重新做好",
                                  steps.before, steps.after))
              << '\n';
}

// The first server's wire may have been pulled a moment ago, which nobody has noticed yet. One that
// runs says something before that.
ShopServer::Standby awaitSilence(ShopServer& server, Console& console) {
  ShopServer::Standby found = server.standby();
  const std::string heard = found.lastHeard;
  if (found.hearsFirst)
    console.err << Words::tr("看主服务器是不是真的停了，最多一分半钟……") << std::endl;
  for (int second = 0; found.hearsFirst && found.lastHeard == heard && second < kLineSeconds;
       ++second) {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    found = server.standby();
  }
  return found;
}

// What can be seen from here is refused; that the first server never writes again, nobody here
// sees.
void promote(const Options& options, Console& console) {
  ServerLine line = options.line();
  ShopServer server(line);
  const ShopServer::Standby found = awaitSilence(server, console);
  if (!found.isStandby) throw Refusal(Words::tr("这不是备机：它已经是主服务器。"));
  if (found.hearsFirst)
    throw Refusal(Words::tr("主服务器还在运行，还在向这台备机传。要切换，先关掉主服务器。"));
  console.out << Words::tr("备机收到的最后一笔：%1",
                           found.lastRepeated.empty() ? "-" : found.lastRepeated)
              << '\n';
  if (!found.wasAwaited && !options.mayLose) {
    throw Refusal(
        Words::tr("主服务器没有等这台备机（synchronous_standby_names 没有设），它答应过的账这里可能"
                  "没有。各台会补传自己的账，服务器上改过的不会回来。仍要切换，加 --may-lose。"));
  }
  if (!options.firstIsOff) {
    throw Refusal(
        Words::tr("原来的主服务器必须关着，以后也不能再当服务器开：两台都收账，账就分开了。确认它关"
                  "了，再加 --first-is-off。"));
  }
  server.promote();
  console.out << Words::tr(
                     "备机已经是主服务器。各台收银机加入时写过两个地址的，自己会找到它；没有写的"
                     "，在各台用 tilladmin enrol 加数据文件和新地址。")
              << '\n';
}

void addTill(const Options& options, Console& console) {
  ServerLine line = options.line();
  const JoinCode code = ShopServer(line).addTill(options.till, options.again);
  console.out << Words::tr("收银机 %1 的加入码，24 小时内用一次：", options.till) << '\n'
              << code.shown() << '\n';
}

std::string statusText(const std::string& status) {
  if (status == "joined") return Words::tr("已加入");
  if (status == "code") return Words::tr("等它加入");
  if (status == "expired") return Words::tr("加入码过期");
  return Words::tr("已停用");
}

std::string silenceText(const ShopServer::Till& till) {
  if (!till.silentSeconds) return Words::tr("从没联系过");
  return *till.silentSeconds < 60 ? Words::tr("在线")
                                  : Words::tr("%1 分钟没联系", *till.silentSeconds / 60);
}

std::string clockText(const ShopServer::Till& till) {
  const std::int64_t ahead = till.clockSeconds.value_or(0);
  if (ahead > kToldClockSeconds) return Words::tr("时钟快 %1 分钟", ahead / 60);
  return ahead < -kToldClockSeconds ? Words::tr("时钟慢 %1 分钟", -ahead / 60) : "-";
}

void tills(const Options& options, Console& console) {
  ServerLine line = options.line();
  for (const ShopServer::Till& till : ShopServer(line).tills()) {
    console.out << till.till << '\t' << statusText(till.status) << '\t' << silenceText(till) << '\t'
                << Words::tr("已到 %1 条", till.applied) << '\t'
                << Words::tr("未到 %1 单", till.pending) << '\t'
                << Words::tr("读不懂 %1 条", till.faults) << '\t'
                << Words::tr("第 %1 段", till.epoch) << '\t' << clockText(till) << '\t'
                << till.version << '\n';
  }
}

void check(const Options& options, Console& console, int& exitCode) {
  ServerLine line = options.line();
  const ShopServer::Checked found = ShopServer(line).check(options.rebuild);
  for (const std::string& fault : found.faults) console.out << fault << '\n';
  exitCode = found.faults.empty() ? 0 : 1;
  console.out << Words::tr("查过 %1 条记录，%2 张单据", found.facts, found.bills) << '\n';
}

void fold(const Options& options, Console& console) {
  ServerLine line = options.line();
  console.out << Words::tr("合并了 %1 行很早的库存和储值卡变动，合计不变",
                           ShopServer(line).fold(options.days))
              << '\n';
}

void revoke(const Options& options, Console& console) {
  ServerLine line = options.line();
  ShopServer(line).revoke(options.till);
  console.out << Words::tr("收银机 %1 已停用；它传来的账还在。", options.till) << '\n';
}

void publish(const Options& options, Console& console) {
  const std::unique_ptr<Connection> office = options.file.openOffice(console);
  ServerLine line = options.line();
  ShopServer(line).requireCurrent();
  const Published done = publish(line, *office, options.shop, [&console](std::int64_t rows) {
    if (rows % kRowsPerProgress == 0) console.err << Words::tr("已送 %1 行", rows) << std::endl;
  });
  console.out << Words::tr("已发布：新增 %1 行，改动 %2 行，删除 %3 行；各台收银机自己来取。",
                           done.added, done.changed, done.removed)
              << '\n';
}

}  // namespace

void addShopCommand(CLI::App& app, Console& console, int& exitCode) {
  CLI::App* parent =
      app.add_subcommand("shop", Words::tr("几台收银机的店：在服务器上建店、加收银机、查账"));
  parent->require_subcommand(1);
  const auto options = std::make_shared<Options>();
  const auto command = [&](const char* name, const std::string& meaning) {
    CLI::App* added = parent->add_subcommand(name, meaning);
    added->add_option("--server", options->server,
                      Words::tr("怎样连到服务器，例如 \"host=/run/postgresql dbname=till\"；"
                                "不写是本机的数据库 till"));
    return added;
  };
  const auto takesTill = [&](CLI::App* added) {
    added->add_option(Words::tr("机号"), options->till, Words::tr("收银机的号码，从 1 起"))
        ->required()
        ->check(wholeNumber(1, kMostTills));
    return added;
  };
  CLI::App* making = command("init", Words::tr("建店"));
  making->add_option("--authority", options->authority,
                     Words::tr("店铺自己的证书（PEM 文件），收银机凭它认服务器"));
  making->callback([options, &console] { init(*options, console); });
  command("upgrade", Words::tr("装了新版本的程序以后，把服务器上的店铺升级到这个版本"))
      ->callback([options, &console] { upgrade(*options, console); });
  CLI::App* promoting =
      command("promote", Words::tr("主服务器坏了：让这台备机当主服务器（在备机上执行）"));
  promoting->add_flag("--first-is-off", options->firstIsOff,
                      Words::tr("确认原来的主服务器关着，以后也不再当服务器"));
  promoting->add_flag("--may-lose", options->mayLose,
                      Words::tr("主服务器没有等这台备机，也要切换"));
  promoting->callback([options, &console] { promote(*options, console); });
  CLI::App* adding = takesTill(command("add-till", Words::tr("加一台收银机，给出它的加入码")));
  adding->add_flag("--again", options->again,
                   Words::tr("它已经加入过：换了机器或者重装，原来的那台从此不能再传"));
  adding->callback([options, &console] { addTill(*options, console); });
  command("tills", Words::tr("列出收银机：状态、最后联系、已到未到、时钟、版本"))
      ->callback([options, &console] { tills(*options, console); });
  CLI::App* checking = command("check", Words::tr("核对每台传来的记录和按它们做的账表"));
  checking->add_flag("--rebuild", options->rebuild, Words::tr("按记录重新做账表"));
  checking->callback([options, &console, &exitCode] { check(*options, console, exitCode); });
  addShopSales(*command("sales", shopSalesMeaning()), options->server, console);
  CLI::App* publishing = command(
      "publish", Words::tr("把办公室数据文件里的商品、会员、操作员和店铺参数发到各台收银机"));
  options->file.addTo(*publishing);
  publishing
      ->add_option("--shop", options->shop,
                   Words::tr("在总部：只发给这个店，在它那里先于发给各店的算数"))
      ->check(wholeNumber(1, kMostShops));
  publishing->footer(Words::tr(
      "办公室的数据文件是不加入店铺的一个文件：商品、会员、操作员和店铺参数都在里面，tilladmin "
      "的命令照样用。只发上次发布以后改过的；上次发布过、现在没有的，在各台也删掉（会员是停用）。\n"
      "不发的：库存、余额、累计消费和积分，以及各台自己的参数 "
      "Journal、BackupOnExit、GoodsImport。"));
  publishing->callback([options, &console] { publish(*options, console); });
  CLI::App* folding = command("fold", Words::tr("把很早的库存和储值卡变动合并成合计，查库存更快"));
  folding
      ->add_option("--days", options->days,
                   Words::tr("多少天以前的；不写是 400，不要比各台的备份新"))
      ->check(wholeNumber(0, kMostDays));
  folding->callback([options, &console] { fold(*options, console); });
  takesTill(command("revoke", Words::tr("停用一台收银机")))->callback([options, &console] {
    revoke(*options, console);
  });
}
