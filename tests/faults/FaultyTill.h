#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "Disk.h"
#include "TillFixture.h"

/// What a shop would count after closing time.
struct Balance {
  std::array<std::string, 2> stock;
  std::string card, totalSpent, points;
  bool operator==(const Balance&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Balance& balance) {
    return out << "stock " << balance.stock[0] << " and " << balance.stock[1] << ", card "
               << balance.card << ", purchases " << balance.totalSpent << ", points "
               << balance.points;
  }
};

/// The layer must be there before the fixture opens its data file.
struct WithDisk {
  Disk disk;
};

/// A till on a disk of the test, and the three ways to settle a bill.
class FaultyTill : public WithDisk, public TillFixture {
 protected:
  enum class Tender { kCash, kCard };

  /// Rings two goods, one of them three times, without settling.
  void ringGoods() {
    enter(kWater);
    enter("QB-01");
    press(38);
    enter("3");
  }
  void attachMember() {
    session.state.curMember = pos.gMemberSvc.GetMember("8001");
    session.state.curBill->setMemberId(session.state.curMember->Id());
  }
  void settle(
      Tender tender, std::function<void()> asked = [] {}) {
    till.pay = [tender, asked](Settlement& payment) {
      asked();
      if (tender == Tender::kCash) return payment.confirmCash("20");
      if (payment.payByCard("8001", "Pw1") == Settlement::CardResult::kPaid) payment.sayCardPaid();
    };
    enter("");
  }

  static std::string value(Connection& books, const std::string& query) {
    const Recordset found = books.Open("select " + query + " as v");
    return found.count() == 0 ? "none" : found.row(0).text("v");
  }
  static Balance balance(Connection& books) {
    return {{value(books, "(select quantity from stock where spbm = '1001')"),
             value(books, "(select quantity from stock where spbm = '2001')")},
            value(books, "(select card from member)"),
            value(books, "(select total_spent from member)"),
            value(books, "(select points from member)")};
  }
};
