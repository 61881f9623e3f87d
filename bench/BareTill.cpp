#include "bench/BareTill.h"

#include <sqlcipher/sqlite3.h>

#include <stdexcept>

#include "store/DataFile.h"

BareTill::BareTill(const std::filesystem::path& dataFile) {
  const std::string password = kBuiltInPassword;
  if (sqlite3_open(dataFile.c_str(), &engine_) != SQLITE_OK ||
      sqlite3_key(engine_, password.data(), static_cast<int>(password.size())) != SQLITE_OK ||
      sqlite3_exec(engine_,
                   "pragma cipher_page_size=4096; pragma journal_mode=wal;"
                   "pragma synchronous=full;",
                   nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(engine_));
  }
  begin_ = prepare("begin immediate");
  commit_ = prepare("commit");
  stock_ = prepare("update stock set quantity = quantity - 1 where spbm = ?");
  line_ = prepare(
      "insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price, discount, "
      "money,"
      " in_price, splbmc, entry_code, ratio, origin) values (1, '2026-11-22 09:05:03', ?, '矿泉水 "
      "550ml', '瓶', 1, 2.5, 1, 2.5, 1.2, '饮料', '6900000000013', 1, '广东')");
  bill_ = prepare(
      "insert into sell (sell_time, operator_id, state, quantity, goods_amount, amount, cash)"
      " values ('2026-11-22 09:05:03', 1, 1, 10, 25, 25, 30)");
}

BareTill::~BareTill() {
  for (sqlite3_stmt* statement : {begin_, commit_, stock_, line_, bill_}) {
    sqlite3_finalize(statement);
  }
  sqlite3_close(engine_);
}

sqlite3_stmt* BareTill::prepare(const char* text) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(engine_, text, -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(engine_));
  }
  return statement;
}

void BareTill::step(sqlite3_stmt* statement) {
  if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(engine_));
  sqlite3_reset(statement);
}

void BareTill::ring(const std::string& itemCode) {
  step(begin_);
  for (sqlite3_stmt* statement : {stock_, line_}) {
    sqlite3_bind_text(statement, 1, itemCode.data(), static_cast<int>(itemCode.size()),
                      SQLITE_STATIC);
    step(statement);
  }
  step(commit_);
}

void BareTill::settle(const std::string& itemCode) {
  step(begin_);
  sqlite3_bind_text(stock_, 1, itemCode.data(), static_cast<int>(itemCode.size()), SQLITE_STATIC);
  step(stock_);
  step(bill_);
  step(commit_);
}
