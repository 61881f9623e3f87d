#include "tools/ReportCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "base/Words.h"
#include "link/ServerLine.h"
#include "saleslib/Journal.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"
#include "tools/ServerTakings.h"

namespace {

namespace fs = std::filesystem;

constexpr int kMostDays = 36'500;
constexpr std::int64_t kMostRows = 1'000'000;
constexpr const char* kStandardOutput = "-";

struct Options {
  DataFileOptions file;
  std::string server;
  std::optional<int> till;
  std::string from, to, out;
  std::string format = "text";
  std::optional<int> slowDays;
  double stockBelow = ReportTerms().stockBelow;
  std::size_t mostGoods = ReportTerms().mostGoods;
};

ReportTerms termsOf(const Options& options, const Date& today) {
  ReportTerms terms;
  terms.from = typedDay(options.from, today).value_or(Date{today.year, today.month, 1});
  terms.to = typedDay(options.to, today).value_or(today);
  if (terms.to < terms.from) throw Refusal(Words::tr("--to 的日期比 --from 早。"));
  terms.slowDays = options.slowDays;
  terms.stockBelow = options.stockBelow;
  terms.mostGoods = options.mostGoods;
  return terms;
}

ReportFormat formatOf(const std::string& word) {
  static const std::map<std::string, ReportFormat> formats = {{"text", ReportFormat::kText},
                                                              {"csv", ReportFormat::kCsv},
                                                              {"xlsx", ReportFormat::kXlsx},
                                                              {"html", ReportFormat::kHtml}};
  return formats.at(word);
}

/// Where texts go unless a file is named; else a file in the present folder.
std::string targetOf(const Options& options, const ReportTerms& terms, ReportFormat format) {
  if (!options.out.empty()) return options.out;
  const bool isForReading = format == ReportFormat::kText || format == ReportFormat::kCsv;
  return isForReading ? kStandardOutput : reportFileName(terms.from, terms.to, format);
}

void print(const Report& report, ReportFormat format, Console& console) {
  if (format == ReportFormat::kXlsx)
    throw Refusal(Words::tr("xlsx 只能写到文件，请用 --out 写明文件名。"));
  console.out << (format == ReportFormat::kText  ? textReport(report)
                  : format == ReportFormat::kCsv ? csvReport(report)
                                                 : htmlReport(report))
              << std::flush;
  if (!console.out) throw Refusal(Words::tr("写不下去，磁盘可能满了，报表不完整。"));
}

/// Tells each tenth once.
ReportProgress progressOn(Console& console) {
  constexpr int kTenths = 10;
  return [&console, told = 0](double part) mutable {
    const int tenths = static_cast<int>(part * kTenths);
    if (tenths > told)
      console.err << Words::tr("已统计 %1%", (told = tenths) * kTenths) << std::endl;
    return true;
  };
}

Report reportOfServer(const Options& options, const ReportTerms& terms, Console& console) {
  ServerLine line({{"dbname", options.server}});
  ServerTakings shop(line, {.till = options.till});
  return takingsReport(shop, terms, console.clock(), progressOn(console)).value();
}

Report reportOfFile(const Options& options, const ReportTerms& terms, const std::string& target,
                    Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  std::error_code ignored;
  if (fs::equivalent(connection->source().path, target, ignored)) {
    throw Refusal(Words::tr("不能把数据文件本身当作报表的文件。"));
  }
  Journal(*connection)
      .note(EntryKind::kReported, {},
            {{"from", dateText(terms.from)}, {"to", dateText(terms.to)}, {"file", target}});
  return takingsReport(*connection, terms, console.clock(), progressOn(console)).value();
}

void report(const Options& options, Console& console) {
  if (options.file.path.empty() == options.server.empty())
    throw Refusal(Words::tr("请写明数据文件，或者用 --server 写明服务器，两样写一样。"));
  const ReportTerms terms = termsOf(options, console.clock().date);
  const ReportFormat format = formatOf(options.format);
  const std::string target = targetOf(options, terms, format);
  const Report made = options.server.empty() ? reportOfFile(options, terms, target, console)
                                             : reportOfServer(options, terms, console);
  if (target == kStandardOutput) return print(made, format, console);
  writeReport(target, made, format);
  console.out << Words::tr("已写到 %1", target) << '\n';
}

}  // namespace

void addReportCommand(CLI::App& app, Console& console) {
  CLI::App* command =
      app.add_subcommand("report", Words::tr("经营报表：按日、时段、操作员、分类和商品的营业额和毛"
                                             "利，付款方式，折扣，退货，没有动销和库存不足的商品"));
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command)->required(false);
  CLI::Option* server = command->add_option(
      "--server", options->server,
      Words::tr("不看一个数据文件，看服务器上全店的账，例如 \"dbname=till\"；怎样连和 shop 一样"));
  command->add_option("--till", options->till, Words::tr("只看服务器上这台收银机的账"))
      ->check(wholeNumber(1, kMostTillsOfChain))
      ->needs(server);
  command->add_option("--from", options->from, Words::tr("从哪天起；不写从本月一日起"));
  command->add_option("--to", options->to, Words::tr("到哪天止（含这一天）；不写到今天"));
  command
      ->add_option("--format", options->format, Words::tr("text、csv、xlsx 或 html；不写是 text"))
      ->check(oneOf({"text", "csv", "xlsx", "html"}));
  command->add_option("--out", options->out,
                      Words::tr("写到哪个文件，- 表示标准输出；不写时 text 和 csv "
                                "写到标准输出，xlsx 和 html 写到当前文件夹，文件名里有日期"));
  command
      ->add_option("--slow-days", options->slowDays,
                   Words::tr("到最后一天为止多少天没有卖过算没有动销；不写看整个期间"))
      ->check(wholeNumber(1, kMostDays));
  command->add_option("--stock-below", options->stockBelow,
                      Words::tr("库存少于多少算不足；不写是 10"));
  command
      ->add_option("--goods", options->mostGoods, Words::tr("每张商品表最多列多少种；不写是 100"))
      ->check(wholeNumber(1, kMostRows));
  command->callback([options, &console] { report(*options, console); });
}
