#pragma once

#include <string>

#include "Disk.h"
#include "TillFixture.h"

/// The layer must be there before the fixture opens its data file.
struct WithDisk {
  Disk disk;
};

/// A till on a disk of the test, and the ways to settle a bill.
class FaultyTill : public WithDisk, public TillFixture {
 protected:
  /// The books of this shop are examined, so that its goods are in order.
  FaultyTill() {
    setParameter("PointUnit", "1");
    pos.gConn->runScript(
        "delete from tmda where xsdj = 'x'; insert into stock values ('2001', 40);"
        "insert into spda (f_spbm) select distinct spbm from tmda");
  }

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
