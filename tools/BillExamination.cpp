#include <optional>
#include <set>
#include <utility>

#include "base/Currency.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/ClsSysParam.h"
#include "store/Connection.h"
#include "tools/Examination.h"

namespace {

// Rounding to jiao and then to yuan moves an amount by at most 0.55.
constexpr Currency kLargestRounding = Currency::fromScaled(5500);
constexpr std::int64_t kJiao = Currency::kScale / 10;
constexpr std::int64_t kBillsPerProgress = 100000;

/// A row's number in one column; nothing for what is no whole number.
std::optional<std::int64_t> numberOf(const Row& row, const char* column) {
  try {
    return row.whole(column);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

/// The lines of one bill, added up.
struct LineSums {
  double quantity = 0;
  Currency amount;
  std::int64_t count = 0;
  bool isReadable = true;
  std::optional<DateTime> first;  ///< when the first of them was rung
};

/// Goes through the bills, their lines and their returns together, each in the order of the bills:
/// one bill at a time in hand.
class BillExamination {
 public:
  explicit BillExamination(const Examination& books);
  void run();

 private:
  LineSums linesOf(std::int64_t number);
  void skipOrphans(std::optional<std::int64_t> upTo);
  void addLine(LineSums& sums);
  bool hasReturns(std::int64_t number);
  void examine(const ClsSell& bill, const LineSums& lines);
  void examineSums(const ClsSell& bill, const LineSums& lines);
  void examineDue(const ClsSell& bill);
  void examineTenders(const ClsSell& bill);
  void examinePayment(const ClsSell& bill);
  void examineTime(const ClsSell& bill, const LineSums& lines);
  void fault(const std::string& text) const { books_.fault(bill_ + text); }

  const Examination& books_;
  Rows bills_, lines_, returns_;
  bool moreLines_, moreReturns_;
  bool mayRound_ = false;  ///< a rule was set once, so that an amount due may have been rounded
  std::set<std::string> unset_;  ///< parameters that the owner never set
  bool isReturned_ = false;
  std::string bill_;  ///< "单据 5", for the texts
};

// Of what came back at another till of the shop there is the entry that followed it.
constexpr const char* kBillsWithReturns =
    "select sell_id from un_sell"
    " union select cast(touches as integer) from fact where kind = 'returned_elsewhere'"
    " order by sell_id";

BillExamination::BillExamination(const Examination& books)
    : books_(books),
      bills_(books.connection.query("select * from sell order by id")),
      lines_(books.connection.query("select * from sellProducts order by sellId, id")),
      returns_(books.connection.query(kBillsWithReturns)),
      moreLines_(lines_.next()),
      moreReturns_(returns_.next()) {
  ClsSysParam rules;
  rules.Conn(books.connection);
  for (const ClsSysParam::Parameter& rule : rules.list()) {
    if (rule.name == "RoundJiao" || rule.name == "RoundYuan") mayRound_ |= rule.isSet;
    if (!rule.isSet) unset_.insert(rule.name);
  }
}

void BillExamination::run() {
  for (std::int64_t done = 1; bills_.next(); ++done) {
    const std::int64_t number = bills_.whole("id").value();
    bill_ = Words::tr("单据 %1", number);
    isReturned_ = hasReturns(number);
    const LineSums lines = linesOf(number);
    try {
      examine(*ClsSell::fromRow(books_.connection, bills_), lines);
    } catch (const Failure& unreadable) {
      fault(Words::tr(" 读不出来，收银窗口会因此打不开：%1", unreadable.what()));
    }
    if (done % kBillsPerProgress == 0) books_.progress(done);
  }
  skipOrphans(std::nullopt);
}

LineSums BillExamination::linesOf(std::int64_t number) {
  skipOrphans(number);
  LineSums sums;
  for (; moreLines_ && numberOf(lines_, "sellId") == number; moreLines_ = lines_.next()) {
    addLine(sums);
  }
  return sums;
}

// Lines of numbers that no bill has, up to that of the bill at hand.
void BillExamination::skipOrphans(std::optional<std::int64_t> upTo) {
  for (; moreLines_; moreLines_ = lines_.next()) {
    const std::optional<std::int64_t> bill = numberOf(lines_, "sellId");
    if (upTo && bill && *bill >= *upTo) return;
    if (upTo && !bill && lines_.text("sellId") >= ":") return;  // texts come behind all numbers
    books_.fault(Words::tr("商品行 %1（%2）的单据 %3 不存在", lines_.text("id"),
                           lines_.text("name"), lines_.text("sellId")));
  }
}

void BillExamination::addLine(LineSums& sums) {
  const std::string line = Words::tr(" 的商品行 %1（%2）", lines_.text("id"), lines_.text("name"));
  ++sums.count;
  try {
    const ClsSellItem item = ClsSellItem::fromRow(books_.connection, lines_);
    const Currency money = lines_.currency("money").value_or(Currency());
    if (money != item.Money()) {
      fault(Words::tr("%1金额是 %2，按单价、数量、折扣应是 %3", line, twoDecimals(money),
                      twoDecimals(item.Money())));
    }
    sums.quantity = roundedQuantity(sums.quantity + item.Quantity());
    sums.amount += money;
    const std::optional<DateTime> rung = lines_.dateTime("insert_Date");
    if (rung && (!sums.first || *rung < *sums.first)) sums.first = rung;
  } catch (const Failure& unreadable) {
    sums.isReadable = false;
    fault(Words::tr("%1读不出来：%2", line, unreadable.what()));
  }
}

bool BillExamination::hasReturns(std::int64_t number) {
  while (moreReturns_ && numberOf(returns_, "sell_id").value_or(0) < number) {
    moreReturns_ = returns_.next();
  }
  return moreReturns_ && numberOf(returns_, "sell_id") == number;
}

void BillExamination::examine(const ClsSell& bill, const LineSums& lines) {
  if (bill.BillNo() <= 0) fault(Words::tr(" 的号码不是流水号"));
  if (bill.State() != 0 && bill.State() != 1) {
    fault(Words::tr(" 的状态不是未结也不是已结：%1", bill.State()));
  }
  const bool isPaid = numberOf(bills_, "paid") != 0;
  if (bill.State() == 1 && isPaid) fault(Words::tr(" 已结，却还带着收款未存的标记"));
  if (bill.State() == 1 || isPaid) {
    examineSums(bill, lines);
    examineDue(bill);
    examineTenders(bill);
    examinePayment(bill);
  } else if (!bill.Cash().isZero() || !bill.CardPay().isZero() || !bill.CardNo().empty()) {
    fault(Words::tr(" 还没结账，却已有付款"));
  }
  examineTime(bill, lines);
}

void BillExamination::examineSums(const ClsSell& bill, const LineSums& lines) {
  if (lines.count == 0) fault(Words::tr(" 没有商品行"));
  if (!lines.isReadable) return;
  if (roundedQuantity(bill.Quantity()) != lines.quantity) {
    fault(Words::tr(" 的数量是 %1，商品行加起来是 %2", generalNumber(bill.Quantity()),
                    generalNumber(lines.quantity)));
  }
  if (bill.GoodsAmount() != lines.amount) {
    fault(Words::tr(" 的商品金额是 %1，商品行加起来是 %2", twoDecimals(bill.GoodsAmount()),
                    twoDecimals(lines.amount)));
  }
}

void BillExamination::examineDue(const ClsSell& bill) {
  const Currency due = bill.Amount(), goods = bill.GoodsAmount();
  if (due == goods) return;
  const std::string figures =
      Words::tr(" 的应收是 %1，商品金额是 %2", twoDecimals(due), twoDecimals(goods));
  if (!mayRound_) {
    fault(Words::tr("%1，店里却从来没有设过抹零", figures));
  } else if (due - goods > kLargestRounding || goods - due > kLargestRounding) {
    fault(Words::tr("%1，抹零到不了这么多", figures));
  } else if (!isReturned_ && due.scaled() % kJiao != 0) {
    fault(Words::tr("%1，抹零之后却不是整角", figures));
  }
}

void BillExamination::examineTenders(const ClsSell& bill) {
  for (const TenderKind& kind : tenderKinds()) {
    const Currency figure = bill.Tendered(kind.tender);
    if (kind.parameter == nullptr || figure.isZero() || !unset_.contains(kind.parameter)) continue;
    fault(Words::tr(" 有%1付款 %2，店里却从来没有设过 %3", Words::tr(kind.name),
                    twoDecimals(figure), kind.parameter));
  }
}

// A card pays all that is due. What was due shrinks with a return, what the card paid does not.
void BillExamination::examinePayment(const ClsSell& bill) {
  const Currency due = roundedToFen(bill.Amount()), paid = bill.CardPay();
  if (bill.CardNo().empty()) {
    if (!paid.isZero()) fault(Words::tr(" 用储值卡付款，却没有卡号"));
    return;
  }
  const std::string figures =
      Words::tr(" 的储值卡付款是 %1，应收是 %2", twoDecimals(paid), twoDecimals(due));
  if (paid < due) {
    fault(Words::tr("%1，不够", figures));
  } else if (!isReturned_ && paid != due) {
    fault(Words::tr("%1，付多了", figures));
  }
  if (!bill.Cash().isZero())
    fault(Words::tr(" 用储值卡付款，却又有现金 %1", twoDecimals(bill.Cash())));
}

void BillExamination::examineTime(const ClsSell& bill, const LineSums& lines) {
  const DateTime& time = bill.SellTime();
  if (bills_.text("sell_time") != storedText(time)) {
    fault(Words::tr(" 的时间不是年-月-日 时:分:秒的写法：%1", bills_.text("sell_time")));
  }
  const std::string hint = Words::tr("；用 tilladmin bill redate 改正");
  if (time > books_.now) {
    fault(bill.State() == 1 && time.date > books_.now.date
              ? Words::tr(" 的时间 %1 还没有到，收银窗口会因此打不开（电脑系统时间错误！）%2",
                          storedText(time), hint)
              : Words::tr(" 的时间 %1 还没有到", storedText(time)));
  }
  if (bill.State() == 1 && lines.first && isFarFrom(time, *lines.first)) {
    fault(Words::tr(" 的时间是 %1，第一行商品却是 %2 录入的%3", storedText(time),
                    storedText(*lines.first), hint));
  }
}

// One till, one cashier: nobody begins two bills in one second.
void examineDoubles(const Examination& books) {
  Rows rows = books.connection.query(
      "select min(id) as id, max(id) as other from sell where state = 1"
      " group by sell_time having count(*) > 1 and min(amount) = max(amount)"
      " and min(quantity) = max(quantity)");
  while (rows.next()) {
    books.remark(
        Words::tr("单据 %1 和 %2 的时间、数量和金额完全相同", rows.text("id"), rows.text("other")));
  }
}

// A slip pays one bill.
void examineSlips(const Examination& books) {
  Rows rows = books.connection.query(
      "select min(id) as id, max(id) as other, phone_slip from sell"
      " where phone_slip is not null group by phone_slip having count(*) > 1");
  while (rows.next()) {
    books.remark(Words::tr("单据 %1 和 %2 的付款码相同：%3", rows.text("id"), rows.text("other"),
                           rows.text("phone_slip")));
  }
}

}  // namespace

bool isFarFrom(const DateTime& bill, const DateTime& line) {
  return bill.date > plusDays(line.date, 1) || bill.date < plusDays(line.date, -1);
}

void examineBills(const Examination& books) {
  BillExamination(books).run();
  examineDoubles(books);
  examineSlips(books);
  Rows unowned = books.connection.query(
      "select id, operator_id from sell "
      "where state = 0 and operator_id not in (select id from operators)");
  while (unowned.next()) {
    books.fault(Words::tr("未结的单据 %1 的操作员 %2 不存在", unowned.text("id"),
                          unowned.text("operator_id")));
  }
}
