#include "tools/ShopSales.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "link/ServerLine.h"
#include "shop/Refusal.h"
#include "store/Row.h"
#include "tools/ParserTexts.h"
#include "tools/ServerTakings.h"

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 9999;

struct Options {
  std::string from, to, goods;
  ServerTakings::Part part;
  std::optional<int> operatorId;
};

class SoldLines {
 public:
  SoldLines(const Options& options, std::map<std::int64_t, std::string> operators,
            std::ostream& out)
      : wanted_(asciiLower(options.goods)),
        operatorId_(options.operatorId),
        operators_(std::move(operators)),
        out_(out) {}

  bool take(const Row& row) {
    if (isWanted(row)) print(row);
    return static_cast<bool>(out_);
  }
  void printSums() const {
    out_ << Words::tr("合计 %1 单，%2 行，数量 %3，金额 %4", bills_, lines_,
                      generalNumber(roundedQuantity(quantity_)), twoDecimals(money_))
         << '\n';
  }

 private:
  /// What was taken back as a whole sold nothing.
  bool isWanted(const Row& row) const {
    const bool isSold = row.number("line_quantity").value_or(0) != 0;
    if (!isSold || (operatorId_ && row.whole("operator_id") != *operatorId_)) return false;
    const std::string words = asciiLower(row.text("bm") + '\n' + row.text("name"));
    return words.find(wanted_) != std::string::npos;
  }

  void print(const Row& row) {
    const std::int64_t bill = row.whole("id").value();
    bills_ += bill == bill_ ? 0 : 1;
    bill_ = bill;
    ++lines_;
    const double quantity = row.number("line_quantity").value_or(0);
    const Currency money = row.currency("money").value_or(Currency());
    quantity_ += quantity;
    money_ += money;
    out_ << row.text("till") << '\t' << row.text("bill") << '\t' << row.text("sell_time") << '\t'
         << person(row.whole("operator_id").value_or(0)) << '\t' << row.text("bm") << '\t'
         << row.text("name") << '\t' << generalNumber(quantity) << '\t'
         << generalNumber(row.currency("price").value_or(Currency())) << '\t'
         << generalNumber(row.number("discount").value_or(1)) << '\t' << twoDecimals(money) << '\n';
  }

  std::string person(std::int64_t id) const {
    const auto known = operators_.find(id);
    return std::to_string(id) + (known == operators_.end() ? "" : " " + known->second);
  }

  std::string wanted_;
  std::optional<int> operatorId_;
  std::map<std::int64_t, std::string> operators_;
  std::ostream& out_;
  std::int64_t bill_ = -1, bills_ = 0, lines_ = 0;
  double quantity_ = 0;
  Currency money_;
};

/// Today, unless a bill is looked for: that may be of any day.
void print(const Options& options, const std::string& server, Console& console) {
  const Date today = console.clock().date;
  const bool isAnyDay = options.part.bill.has_value();
  const Date from =
      typedDay(options.from, today).value_or(isAnyDay ? Date{kFirstYear, 1, 1} : today);
  const Date to = typedDay(options.to, today).value_or(isAnyDay ? Date{kLastYear, 12, 30} : today);
  if (to < from) throw Refusal(Words::tr("--to 的日期比 --from 早。"));
  ServerLine line({{"dbname", server}});
  ServerTakings shop(line, options.part);
  SoldLines lines(options, shop.operatorNames(), console.out);
  const bool isWhole = shop.sold(DateTime{from}, DateTime{plusDays(to, 1)},
                                 [&lines](const Row& row) { return lines.take(row); });
  if (!isWhole) throw Refusal(Words::tr("写不下去，磁盘可能满了，列得不完整。"));
  lines.printSums();
}

}  // namespace

std::string shopSalesMeaning() {
  return Words::tr(
      "列出各台卖出的每一行，最早的在前，最后是合计：机号、单号、时间、操作员、货号、品名、数量、"
      "单价、折扣、金额，各用制表符分开；退了的已减去");
}

void addShopSales(CLI::App& command, const std::string& server, Console& console) {
  const auto options = std::make_shared<Options>();
  command.add_option("--from", options->from, Words::tr("从哪天起；不写从今天起"));
  command.add_option("--to", options->to, Words::tr("到哪天止（含这一天）；不写到今天"));
  command.add_option("--till", options->part.till, Words::tr("只列这台收银机"))
      ->check(wholeNumber(1, kMostTillsOfChain));
  command
      .add_option("--bill", options->part.bill,
                  Words::tr("只列小票上这个单号的一单；不写日期就不论哪天"))
      ->check(wholeNumber(1, std::numeric_limits<std::int32_t>::max()));
  command.add_option("--operator", options->operatorId, Words::tr("只列这位操作员"))
      ->check(wholeNumber(0, INT16_MAX));
  command.add_option("--goods", options->goods, Words::tr("只列货号或品名里有这些字的"));
  command.callback([options, &server, &console] { print(*options, server, console); });
}
