#include <string>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/ShiftTakings.h"
#include "store/Connection.h"
#include "tools/Examination.h"

namespace {

void examineClosed(const Examination& books, std::int64_t number) {
  const ShiftTakings stored = closedTakings(books.connection, number);
  const ShiftTakings found = takingsOfShift(books.connection, number);
  if (stored == found) return;
  const auto text = [](const ShiftTakings& takings) {
    return Words::tr("单据 %1 笔 %2 元，钱箱现金 %3 元", takings.bills.count,
                     twoDecimals(takings.bills.amount), twoDecimals(takings.cash()));
  };
  books.fault(Words::tr("班次 %1 结班时是%2；按账上的单据、充值、退货和存取款却是%3", number,
                        text(stored), text(found)));
}

void examineNumbers(const Examination& books) {
  std::int64_t expected = 1;
  Rows rows = books.connection.query("select id, closed from shift order by id");
  while (rows.next()) {
    const std::int64_t number = rows.whole("id").value_or(0);
    for (; expected < number; ++expected) books.fault(Words::tr("少了班次 %1", expected));
    expected = number + 1;
    try {
      if (!rows.isNull("closed")) examineClosed(books, number);
    } catch (const Failure& unreadable) {
      books.fault(Words::tr("班次 %1 读不出来：%2", number, unreadable.what()));
    }
  }
  Rows open = books.connection.query("select count(*) as n from shift where closed is null");
  if (open.next() && open.whole("n").value_or(0) > 1)
    books.fault(Words::tr("有 %1 个班次没有结班", open.whole("n").value_or(0)));
}

void examineStrays(const Examination& books, const char* query, const std::string& what) {
  Rows rows = books.connection.query(query);
  while (rows.next()) {
    books.fault(
        Words::tr("%1 %2 属于班次 %3，却没有这个班次", what, rows.text("id"), rows.text("shift")));
  }
}

}  // namespace

void examineShifts(const Examination& books) {
  examineNumbers(books);
  examineStrays(books,
                "select id, shift from sell where shift is not null and shift not in (select id "
                "from shift) order by id",
                Words::tr("单据"));
  examineStrays(books,
                "select id, shift from un_sell where shift is not null and shift not in (select id "
                "from shift) order by id",
                Words::tr("退货"));
  examineStrays(books,
                "select id, shift from cardStored where shift is not null and shift not in (select "
                "id from shift) order by id",
                Words::tr("充值"));
}
