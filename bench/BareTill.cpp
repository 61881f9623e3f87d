#include "bench/BareTill.h"

BareTill::BareTill(const std::filesystem::path& dataFile)
    : engine_(dataFile),
      begin_(engine_, "begin immediate"),
      commit_(engine_, "commit"),
      stock_(engine_, "update stock set quantity = round(quantity - 1, 6) where spbm = ?"),
      line_(engine_,
            "insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price,"
            " discount, money, in_price, splbmc, entry_code, ratio, origin)"
            " values (?2, '2024-01-03 09:05:03', ?1, '矿泉水 550ml', '瓶',"
            " 1, 2.5, 1, 2.5, 1.2, '饮料', '6900000000013', 1, '广东')"),
      bill_(engine_, "insert into sell (sell_time, operator_id) values ('2024-01-03 09:05:03', 1)"),
      member_(engine_,
              "update member set total_spent = total_spent + 25, points = points + 25"
              " where id = ?"),
      store_(engine_,
             "update sell set sell_time = '2024-01-03 09:05:03', state = 1, quantity = 10,"
             " goods_amount = 25, amount = 25, cash = 25, member_id = ?"
             " where id = ?"),
      checkpoint_(engine_, "pragma wal_checkpoint") {
  openBill();
}

void BareTill::ring(const std::string& itemCode) {
  begin_.run();
  stock_.bind(1, itemCode).run();
  line_.bind(1, itemCode).bind(2, billNo_).run();
  commit_.run();
}

void BareTill::settle(int member) {
  begin_.run();
  store_.bind(1, member).bind(2, billNo_).run();
  if (member != 0) member_.bind(1, member).run();
  commit_.run();
}

void BareTill::openBill() {
  begin_.run();
  bill_.run();
  billNo_ = engine_.lastRowId();
  commit_.run();
}
