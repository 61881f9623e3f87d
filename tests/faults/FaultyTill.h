#pragma once

#include <string>

#include "BookFaults.h"
#include "Disk.h"
#include "TillFixture.h"
#include "saleslib/ShiftBooks.h"

/// A till whose books are examined, in a shop that keeps a journal and works in shifts; one is
/// open. There is plenty in stock and on the card.
class ExaminedTill : public TillFixture {
 protected:
  ExaminedTill() {
    pos.gConn->runScript(
        "delete from tmda where xsdj = 'x'; insert into stock values ('2001', 40);"
        "insert into spda (f_spbm) select distinct spbm from tmda;"
        "update stock set quantity = 1000000;"
        "update member set card = 900000, total_spent = 0, points = 0");
    for (const char* name : {"PointUnit", "Shifts", "Journal"}) setParameter(name, "1");
    EXPECT_TRUE(pos.shiftBooks().open(Currency::fromYuan(100)));
  }

  std::string bookFaults() const { return ::bookFaults(*pos.gConn, pos.clock); }
};

/// The layer must be there before the fixture opens its data file.
struct WithDisk {
  Disk disk;
};

/// A till on a disk of the test, and the ways to settle a bill.
class FaultyTill : public WithDisk, public ExaminedTill {
 protected:
  /// Rings two goods, one of them three times, for 7 yuan, and settles; `asked` is called before
  /// the cashier confirms the payment. The member comes at the prices that were rung already.
  void sell(
      Tender tender, bool member, const std::function<void()>& asked = [] {}) {
    enter(kWater);
    enter("QB-01");
    press(kUp);
    enter("3");
    if (member) bill().setMemberId(pos.gMemberSvc.GetMember("8001")->Id());
    till.pay = [tender, asked](Settlement& payment) {
      asked();
      if (tender == Tender::kCash) return payment.confirmCash("20");
      if (payment.payByCard("8001", "Pw1") == CardOutcome::kDone) payment.sayCardPaid();
    };
    enter("");
  }

  /// The only value of a query, as text.
  static std::string value(Connection& books, const std::string& query) {
    return books.Open("select (select " + query + ") as v").row(0).text("v");
  }
};
