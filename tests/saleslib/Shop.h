#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "TemporaryFolder.h"
#include "saleslib/ClsSell.h"
#include "store/Connection.h"
#include "store/DataFile.h"

/// A shop with empty tables and a clock that the test sets.
class Shop : public testing::Test {
 protected:
  const Clock clock = [this] { return now; };

  ClsSell openBill(std::int32_t operatorId = 1) {
    connection.run(
        "insert into operators (id, name, code, password) select ?, '张三', '01', '-'"
        " where not exists (select 1 from operators where id = ?)",
        operatorId, operatorId);
    ClsSell bill;
    EXPECT_TRUE(bill.Open(connection, 0, operatorId, clock));
    return bill;
  }
  std::shared_ptr<ClsSellItem> newLine(const ClsSell& bill, const char* price, double quantity) {
    auto line = std::make_shared<ClsSellItem>();
    line->Init(connection, bill.BillNo(), 0, clock);
    line->setSpCode("1001");
    line->setSpName("矿泉水");
    line->setPrice(Currency::parse(price).value());
    line->setQuantity(quantity);
    return line;
  }
  std::shared_ptr<ClsSellItem> ring(ClsSell& bill, const char* price, double quantity) {
    auto line = newLine(bill, price, quantity);
    line->Save();
    bill.AddItem(line);
    return line;
  }
  void settle(ClsSell& bill) {
    bill.setState(1);
    ASSERT_TRUE(bill.Save()) << bill.ErrText();
  }
  /// The first value of an engine query, as text; "-" when there is no row.
  std::string stored(const std::string& query) {
    Rows rows = connection.query(("select (select " + query + ") as value").c_str());
    return rows.next() && !rows.isNull("value") ? rows.text("value") : "-";
  }
  /// From now on every statement of that kind ("update of state on sell") fails.
  void breakStore(const std::string& kind) {
    connection.runScript("create temp trigger broken before " + kind +
                         " begin select raise(abort, 'broken'); end");
  }

  DateTime now{{2026, 11, 22}, 9, 5, 3};

 private:
  TemporaryFolder folder_;
  std::unique_ptr<Connection> file_ = createDataFile({folder_.path() / "pos.mdb", ""});

 protected:
  Connection& connection = *file_;
};

inline Currency yuan(const char* text) {
  return Currency::parse(text).value();
}
