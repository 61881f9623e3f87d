#include "takings/BillReading.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "store/Row.h"
#include "takings/TakingsSource.h"

namespace {

constexpr int kBillsPerProgress = 1024;

// Whole counts, nearly all there are, need no decimals.
Currency moneyFor(Currency price, double quantity) {
  constexpr std::int64_t kScaledPerFen = Currency::kScale / 100;
  constexpr double kFew = 1e6;
  constexpr std::int64_t kSmall = std::int64_t{1} << 40;
  const bool isPlain = std::trunc(quantity) == quantity && std::abs(quantity) < kFew &&
                       std::abs(price.scaled()) < kSmall && price.scaled() % kScaledPerFen == 0;
  if (!isPlain) return lineAmount(price, quantity, Discount());
  return Currency::fromScaled(price.scaled() * static_cast<std::int64_t>(quantity));
}

Currency moneyIn(const Row& row, const char* column) {
  return row.currency(column).value_or(Currency());
}

class TakingsReader {
 public:
  TakingsReader(TakingsSource& shop, const ReadingPeriod& period, const ReportProgress& goOn)
      : shop_(shop), period_(period), goOn_(goOn), first_(std::min(period.from, period.slowFrom)) {}

  [[nodiscard]] bool readBills() {
    const bool isWhole = shop_.sold(DateTime{first_}, afterPeriod(), [this](const Row& row) {
      const std::int64_t bill = row.whole("id").value();
      if (bill != bill_) {
        endBill();
        if (++seen_ % kBillsPerProgress == 0 && !goOn_(partDone())) return false;
        beginBill(bill, row);
      }
      if (const auto ratio = row.whole("ratio")) addLine(row, *ratio);
      return true;
    });
    if (isWhole) endBill();
    return isWhole;
  }

  void readReturns() {
    shop_.returned(DateTime{period_.from}, afterPeriod(), [this](const Row& row) {
      addReturn(row);
      return true;
    });
  }

  Takings taken() { return std::move(takings_); }

 private:
  DateTime afterPeriod() const { return {plusDays(period_.to, 1)}; }

  /// By the years and days of the bill's date, which is near enough.
  double partDone() const {
    const auto days = [](const Date& date) {
      return (date.year * 12 + date.month) * 31 + date.day;
    };
    const double all = days(period_.to) - days(first_) + 1;
    return (days(time_.date) - days(first_)) / all;
  }

  void beginBill(std::int64_t number, const Row& row) {
    bill_ = number;
    time_ = row.dateTime("sell_time").value_or(DateTime());
    isInPeriod_ = time_.date >= period_.from;
    moves_ = time_.date >= period_.slowFrom;
    sums_ = {};
    if (!isInPeriod_) return;
    operator_ = row.whole("operator_id").value_or(0);
    till_ = shop_.hasTills() ? row.whole("till").value_or(0) : 0;
    sums_.bills = 1;
    sums_.quantity = row.number("quantity").value_or(0);
    sums_.due = moneyIn(row, "amount");
    sums_.earned.money = moneyIn(row, "goods_amount");
    for (const TenderKind& kind : tenderKinds()) addTender(kind, moneyIn(row, kind.column));
  }

  void addTender(const TenderKind& kind, Currency sum) {
    if (kind.tender == Tender::kFavorable) sums_.favorable = sum;
    if (sum.isZero()) return;
    TenderSums& all = takings_.byTender[kind.tender];
    ++all.bills;
    all.sum += sum;
  }

  void endBill() {
    if (!isInPeriod_) return;
    takings_.all.add(sums_);
    takings_.byDay[time_.date].add(sums_);
    takings_.byHour[time_.hour].add(sums_);
    takings_.byOperator[operator_].add(sums_);
    if (shop_.hasTills()) takings_.byTill[till_].add(sums_);
    isInPeriod_ = false;
  }

  /// A line that was taken back as a whole sold nothing.
  void addLine(const Row& row, std::int64_t ratio) {
    const double quantity = row.number("line_quantity").value_or(0);
    if (quantity == 0) return;
    const std::string code = row.text("bm");
    key_.code = asciiLower(code);
    key_.category = row.text("splbmc");
    GoodsSums& goods = takings_.sold[key_];
    goods.moved = goods.moved || moves_;
    if (!isInPeriod_) return;
    const Earned earned = earnedBy(row, quantity);
    goods.earned.add(earned);
    goods.quantity = roundedQuantity(goods.quantity + quantity * static_cast<double>(ratio));
    sums_.earned.cost += earned.cost;
    sums_.earned.costless += earned.costless;
    addDiscount(row, quantity, earned.money, goods);
    if (++goods.lines > 1) return;
    goods.code = code;
    goods.name = row.text("name");
  }

  /// A cost price of nothing is one that nobody has entered.
  static Earned earnedBy(const Row& row, double quantity) {
    const Currency money = moneyIn(row, "money");
    const Currency price = moneyIn(row, "in_price");
    if (price.isZero()) return {money, Currency(), money};
    return {money, moneyFor(price, quantity), Currency()};
  }

  void addDiscount(const Row& row, double quantity, Currency money, GoodsSums& goods) {
    if (row.number("discount").value_or(1) == 1) return;
    const Currency off = moneyFor(moneyIn(row, "price"), quantity) - money;
    ++sums_.discountedLines;
    sums_.lineDiscount += off;
    goods.lineDiscount += off;
  }

  void addReturn(const Row& row) {
    const Currency money = moneyIn(row, "money");
    const std::string code = row.text("bm");
    ReturnSums& goods = takings_.returned[asciiLower(code)];
    if (++goods.returns == 1) {
      goods.code = code;
      goods.name = row.text("name");
    }
    goods.quantity = roundedQuantity(goods.quantity + row.number("quantity").value_or(0) *
                                                          row.number("ratio").value_or(1));
    goods.refunded += money;
    BillSums returned;
    returned.returns = 1;
    returned.refunded = money;
    takings_.all.add(returned);
    takings_.byOperator[row.whole("operator_id").value_or(0)].add(returned);
  }

  TakingsSource& shop_;
  const ReadingPeriod& period_;
  const ReportProgress& goOn_;
  Date first_;
  Takings takings_;
  SoldAs key_;  ///< kept for its room

  // Of the bill at hand.
  std::int64_t bill_ = 0, operator_ = 0, till_ = 0;
  int seen_ = 0;
  DateTime time_;
  bool isInPeriod_ = false, moves_ = false;
  BillSums sums_;
};

}  // namespace

std::optional<Takings> readTakings(TakingsSource& shop, const ReadingPeriod& period,
                                   const ReportProgress& goOn) {
  TakingsReader reader(shop, period, goOn);
  if (!reader.readBills()) return std::nullopt;
  reader.readReturns();
  return reader.taken();
}
