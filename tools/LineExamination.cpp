#include <cstdint>
#include <optional>

#include "base/Currency.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "tools/Examination.h"

namespace {

/// A line as the order in time needs it.
struct Rung {
  std::string line, bill;
  DateTime time;
};

std::string rungText(const Rung& rung) {
  return Words::tr("商品行 %1（单据 %2）是 %3", rung.line, rung.bill, storedText(rung.time));
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
    if (rung.time > books.now)
      books.fault(Words::tr("%1 录入的，这个时间还没有到", rungText(rung)));
    if (last && rung.time < dayBefore(last->time)) {
      books.fault(Words::tr("%1 录入的，它前面的%2：有一张的时间被改过，或者电脑的时间错过",
                            rungText(rung), rungText(*last)));
    }
    last = std::move(rung);
  }
}

void examineItems(const Examination& books) {
  Rows unknown = books.connection.query(
      "select bm, min(name) as name, count(*) as lines, min(sellId) as bill from sellProducts"
      " where not exists (select 1 from spda where f_spbm = bm) group by bm");
  while (unknown.next()) {
    books.fault(Words::tr(
        "商品资料 spda 里没有编码 %1（%2），却卖过 %3 行，第一张是单据 %4：查询和报表里看不到它们",
        unknown.text("bm"), unknown.text("name"), unknown.text("lines"), unknown.text("bill")));
  }
  // Ringing a line is what makes a row of stock, if there was none.
  Rows gone = books.connection.query(
      "select bm, min(sellId) as bill from sellProducts where amount * ratio <> 0"
      " and not exists (select 1 from stock where spbm = bm) group by bm");
  while (gone.next()) {
    books.fault(
        Words::tr("商品 %1 在单据 %2 里卖过，库存里却没有它", gone.text("bm"), gone.text("bill")));
  }
}

constexpr const char* kReturns =
    "select u.*, l.id as line, l.name as name, l.ratio as line_ratio, l.discount as line_discount,"
    " l.in_price as line_cost, l.price as price, s.sell_time as bill_time, s.state as state from "
    "un_sell u"
    " left join sellProducts l on l.id = u.item_id and l.sellId = u.sell_id"
    " left join sell s on s.id = u.sell_id"
    " where u.id not in (select un_sell from return_elsewhere) order by u.id";

std::string wrongTerms(const Row& row) {
  if (row.number("ratio") != row.number("line_ratio")) return Words::tr("单位比例");
  if (row.number("discount") != row.number("line_discount")) return Words::tr("折扣");
  if (row.currency("line_cost") && row.currency("cost") != row.currency("line_cost"))
    return Words::tr("成本");
  return {};
}

void examineReturn(const Examination& books, const Row& row) {
  const std::string name = Words::tr("退货 %1", row.text("id"));
  if (row.isNull("line")) {
    books.fault(Words::tr("%1 所退的商品行 %2 不在单据 %3 里", name, row.text("item_id"),
                          row.text("sell_id")));
    return;
  }
  if (row.whole("state") != 1)
    books.fault(Words::tr("%1 的单据 %2 没有结账", name, row.text("sell_id")));
  if (!(row.number("quantity").value_or(0) > 0)) {
    books.fault(Words::tr("%1 的数量不对：%2", name, row.text("quantity")));
  }
  const Currency refund = row.currency("money").value_or(Currency());
  if (refund < Currency()) books.fault(Words::tr("%1 的退款是负的：%2", name, twoDecimals(refund)));
  const Currency worth =
      lineAmount(row.currency("price").value_or(Currency()), row.number("quantity").value_or(0),
                 Discount(row.number("discount").value_or(1)));
  if (refund > worth && worth >= Currency()) {
    books.remark(Words::tr("%1 退了 %2，所退的%3只值 %4", name, twoDecimals(refund),
                           row.text("name"), twoDecimals(worth)));
  }
  if (const std::string term = wrongTerms(row); !term.empty()) {
    books.fault(Words::tr("%1 的%2与所退的商品行 %3（%4）不同", name, term, row.text("line"),
                          row.text("name")));
  }
  const DateTime time = row.dateTime("un_time").value_or(DateTime());
  const DateTime sold = row.dateTime("bill_time").value_or(DateTime());
  if (time > books.now) books.fault(Words::tr("%1 的时间 %2 还没有到", name, storedText(time)));
  if (time < dayBefore(sold)) {
    books.fault(Words::tr("%1 的时间 %2 早于单据 %3 的时间 %4", name, storedText(time),
                          row.text("sell_id"), storedText(sold)));
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
      books.fault(Words::tr("退货 %1 读不出来：%2", rows.text("id"), unreadable.what()));
    }
  }
  Rows twice = books.connection.query(
      "select min(id) as id, max(id) as other from un_sell group by item_id, un_time"
      " having count(*) > 1");
  while (twice.next()) {
    books.remark(
        Words::tr("退货 %1 和 %2 的商品行和时间完全相同", twice.text("id"), twice.text("other")));
  }
  // A return lowers its line: what is left below zero was never sold.
  Rows beyond = books.connection.query(
      "select id, sellId, name, amount from sellProducts "
      "where amount < 0 and id in (select item_id from un_sell)");
  while (beyond.next()) {
    books.fault(Words::tr("单据 %1 的商品行 %2（%3）退的比卖的多，还剩 %4", beyond.text("sellId"),
                          beyond.text("id"), beyond.text("name"), beyond.text("amount")));
  }
}
