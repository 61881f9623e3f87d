#pragma once

#include <string>

#include "Disk.h"
#include "TillFixture.h"

/// The layer must be there before the fixture opens its data file.
struct WithDisk {
  Disk disk;
};

/// A till on a disk of the test, and the three ways to settle a bill.
class FaultyTill : public WithDisk, public TillFixture {
 protected:
  enum class Tender { kCash, kCard };

  /// The books of this shop are examined, so that its goods are in order.
  FaultyTill() {
    pos.gConn->runScript(
        "delete from tmda where xsdj = 'x';"
        "insert into spda (f_spbm) select distinct spbm from tmda");
  }

  /// Rings two goods, one of them three times, without settling.
  void ringGoods() {
    enter(kWater);
    enter("QB-01");
    press(38);
    enter("3");
  }
  /// At the prices that were rung already.
  void attachMember() { bill().setMemberId(pos.gMemberSvc.GetMember("8001")->Id()); }
  void settle(
      Tender tender, std::function<void()> asked = [] {}) {
    till.pay = [tender, asked](Settlement& payment) {
      asked();
      if (tender == Tender::kCash) return payment.confirmCash("20");
      if (payment.payByCard("8001", "Pw1") == CardOutcome::kDone) payment.sayCardPaid();
    };
    enter("");
  }

  static std::string value(Connection& books, const std::string& query) {
    const Recordset found = books.Open("select " + query + " as v");
    return found.count() == 0 ? "none" : found.row(0).text("v");
  }
  static std::string stockOf(Connection& books, const std::string& item) {
    return value(books, "(select quantity from stock where spbm = '" + item + "')");
  }
  /// What a shop would count after closing time.
  static std::string balance(Connection& books) {
    return "stock " + stockOf(books, "1001") + " and " + stockOf(books, "2001") + ", card " +
           value(books,
                 "(select card || ', purchases ' || total_spent || ', points ' || points "
                 "from member)");
  }
};
