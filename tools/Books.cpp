#include "tools/Books.h"

#include <utility>

#include "base/Words.h"
#include "store/Connection.h"
#include "store/Integrity.h"
#include "store/Snapshot.h"

Books::Books(Connection& connection, Report report, Clock clock)
    : connection_(connection), report_(std::move(report)), clock_(std::move(clock)) {}

BooksSummary Books::check() {
  found_ = {};
  const Snapshot oneState(connection_);  // the till goes on selling
  checkFile();
  count();
  const Examination books{
      connection_, clock_(), [this](const std::string& text) { fault(text); }, remark_,
      [this](std::int64_t bills) {
        progress_(static_cast<double>(bills) / static_cast<double>(found_.bills));
      }};
  examineBills(books);
  examineLines(books);
  examineReturns(books);
  examineMembers(books);
  examineGoods(books);
  examineShop(books);
  examineShifts(books);
  examineJournal(books);
  return found_;
}

void Books::checkFile() {
  for (const std::string& found : fileFaults(connection_))
    fault(Words::tr("数据文件损坏：%1", found));
  const SchemaDifference schema = schemaDifference(connection_);
  for (const std::string& name : schema.added)
    fault(Words::tr("数据文件里多了本程序没有的东西：%1", name));
  for (const std::string& name : schema.missing)
    fault(Words::tr("数据文件里少了本程序要用的东西：%1", name));
}

void Books::count() {
  Rows rows = connection_.query(
      "select (select count(*) from sell) as bills, "
      "(select count(*) from sell where state = 0) as open_bills, "
      "(select count(*) from sell where paid = 1 and state = 0) as paid_bills, "
      "(select count(*) from sellProducts) as lines, "
      "(select count(*) from un_sell) as returns, "
      "(select count(*) from stock) as stock_rows, "
      "(select count(*) from fact) as entries");
  rows.next();
  found_.bills = rows.whole("bills").value();
  found_.openBills = rows.whole("open_bills").value();
  found_.paidBills = rows.whole("paid_bills").value();
  found_.lines = rows.whole("lines").value();
  found_.returns = rows.whole("returns").value();
  found_.entries = rows.whole("entries").value();
  found_.stockRows = rows.whole("stock_rows").value();
}

void Books::fault(const std::string& text) {
  ++found_.faults;
  report_(text);
}
