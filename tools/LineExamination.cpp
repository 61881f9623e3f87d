#include <cstdint>
#include <optional>

#include "base/Currency.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "store/Connection.h"
#include "tools/Examination.h"

namespace {

/// A line as the order in time needs it.
struct Rung {
  std::string line, bill;
  DateTime time;
};

std::string rungText(const Rung& rung) {
  return "商品行 " + rung.line + "（单据 " + rung.bill + "）是 " + storedText(rung.time);
}

DateTime dayBefore(const DateTime& time) {
  return {plusDays(time.date, -1), time.hour, time.minute, time.second};
}

// Rows are numbered as they are rung, and the till does not go on selling with a clock that was set
// back by a day.
void examineOrder(const Examination& books) {
  Rows rows =
      books.connection.query("select id, sellId, insert_Date from sellProducts order by id");
  std::optional<Rung> last;
  while (rows.next()) {
    Rung rung{rows.text("id"), rows.text("sellId"), {}};
    try {
      rung.time = rows.dateTime("insert_Date").value_or(DateTime());
    } catch (const Failure&) {
      continue;  // the bill's examination has named it
    }
    if (rung.time > books.now) books.fault(rungText(rung) + " 录入的，这个时间还没有到");
    if (last && rung.time < dayBefore(last->time)) {
      books.fault(rungText(rung) + " 录入的，它前面的" + rungText(*last) +
                  "：有一张的时间被改过，或者电脑的时间错过");
    }
    last = std::move(rung);
  }
}

void examineItems(const Examination& books) {
  Rows unknown = books.connection.query(
      "select bm, min(name) as name, count(*) as lines, min(sellId) as bill from sellProducts"
      " where not exists (select 1 from spda where f_spbm = bm) group by bm");
  while (unknown.next()) {
    books.fault("商品资料 spda 里没有编码 " + unknown.text("bm") + "（" + unknown.text("name") +
                "），却卖过 " + unknown.text("lines") + " 行，第一张是单据 " +
                unknown.text("bill") + "：查询和报表里看不到它们");
  }
  // Ringing a line is what makes a row of stock, if there was none.
  Rows gone = books.connection.query(
      "select bm, min(sellId) as bill from sellProducts where amount * ratio <> 0"
      " and not exists (select 1 from stock where spbm = bm) group by bm");
  while (gone.next()) {
    books.fault("商品 " + gone.text("bm") + " 在单据 " + gone.text("bill") +
                " 里卖过，库存里却没有它");
  }
}

constexpr const char* kReturns =
    "select u.*, l.id as line, l.name as name, l.ratio as line_ratio, l.discount as line_discount,"
    " l.in_price as line_cost, l.price as price, s.sell_time as bill_time, s.state as state from "
    "un_sell u"
    " left join sellProducts l on l.id = u.item_id and l.sellId = u.sell_id"
    " left join sell s on s.id = u.sell_id order by u.id";

std::string wrongTerms(const Row& row) {
  if (row.number("ratio") != row.number("line_ratio")) return "单位比例";
  if (row.number("discount") != row.number("line_discount")) return "折扣";
  if (row.currency("line_cost") && row.currency("cost") != row.currency("line_cost")) return "成本";
  return {};
}

void examineReturn(const Examination& books, const Row& row) {
  const std::string name = "退货 " + row.text("id");
  if (row.isNull("line")) {
    books.fault(name + " 所退的商品行 " + row.text("item_id") + " 不在单据 " + row.text("sell_id") +
                " 里");
    return;
  }
  if (row.whole("state") != 1) books.fault(name + " 的单据 " + row.text("sell_id") + " 没有结账");
  if (!(row.number("quantity").value_or(0) > 0)) {
    books.fault(name + " 的数量不对：" + row.text("quantity"));
  }
  const Currency refund = row.currency("money").value_or(Currency());
  if (refund < Currency()) books.fault(name + " 的退款是负的：" + twoDecimals(refund));
  const Currency worth =
      lineAmount(row.currency("price").value_or(Currency()), row.number("quantity").value_or(0),
                 Discount(row.number("discount").value_or(1)));
  if (refund > worth && worth >= Currency()) {
    books.remark(name + " 退了 " + twoDecimals(refund) + "，所退的" + row.text("name") + "只值 " +
                 twoDecimals(worth));
  }
  if (const std::string term = wrongTerms(row); !term.empty()) {
    books.fault(name + " 的" + term + "与所退的商品行 " + row.text("line") + "（" +
                row.text("name") + "）不同");
  }
  const DateTime time = row.dateTime("un_time").value_or(DateTime());
  const DateTime sold = row.dateTime("bill_time").value_or(DateTime());
  if (time > books.now) books.fault(name + " 的时间 " + storedText(time) + " 还没有到");
  if (time < dayBefore(sold)) {
    books.fault(name + " 的时间 " + storedText(time) + " 早于单据 " + row.text("sell_id") +
                " 的时间 " + storedText(sold));
  }
}

}  // namespace

void examineLines(const Examination& books) {
  examineOrder(books);
  examineItems(books);
}

void examineReturns(const Examination& books) {
  Rows rows = books.connection.query(kReturns);
  while (rows.next()) {
    try {
      examineReturn(books, rows);
    } catch (const Failure& unreadable) {
      books.fault("退货 " + rows.text("id") + " 读不出来：" + unreadable.what());
    }
  }
  Rows twice = books.connection.query(
      "select min(id) as id, max(id) as other from un_sell group by item_id, un_time"
      " having count(*) > 1");
  while (twice.next()) {
    books.remark("退货 " + twice.text("id") + " 和 " + twice.text("other") +
                 " 的商品行和时间完全相同");
  }
  // A return lowers its line: what is left below zero was never sold.
  Rows beyond = books.connection.query(
      "select id, sellId, name, amount from sellProducts "
      "where amount < 0 and id in (select item_id from un_sell)");
  while (beyond.next()) {
    books.fault("单据 " + beyond.text("sellId") + " 的商品行 " + beyond.text("id") + "（" +
                beyond.text("name") + "）退的比卖的多，还剩 " + beyond.text("amount"));
  }
}
