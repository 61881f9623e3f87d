#include "saleslib/ClsStock.h"

#include <cmath>
#include <utility>

#include "base/NumberText.h"
#include "store/Connection.h"

namespace {

constexpr double kLargestMovement = 1e12;

}  // namespace

void ClsStock::Init(Connection& connection, std::string itemCode) {
  connection_ = &connection;
  itemCode_ = std::move(itemCode);
  errText_.clear();
}

bool ClsStock::PutBack(double quantity, int) {
  if (!acceptable(quantity)) return false;
  add(quantity);
  return true;
}

bool ClsStock::TakeOut(double quantity, int, std::int16_t stockRule) {
  if (!acceptable(quantity)) return false;
  // A negative take (a line of negative quantity) fills the stock, which no rule refuses.
  if (stockRule == 0 || quantity <= 0) {
    add(-quantity);
    return true;
  }
  if (takeIfEnough(quantity)) return true;
  errText_ =
      "库存不足：" + goodsName() + "（" + itemCode_ + "）现有库存 " + generalNumber(StockQty());
  return false;
}

bool ClsStock::acceptable(double quantity) {
  errText_.clear();
  if (std::isfinite(quantity) && std::abs(quantity) <= kLargestMovement) return true;
  errText_ = "数量超出范围：" + goodsName() + "（" + itemCode_ + "）";
  return false;
}

void ClsStock::add(double quantity) {
  if (quantity == 0) return;
  const std::int64_t changed = connection_->run(
      "update stock set quantity = round(quantity + ?, 6) where spbm = ?", quantity, itemCode_);
  if (changed != 0) return;
  connection_->run("insert into stock (spbm, quantity) values (?, round(?, 6))", itemCode_,
                   quantity);
}

// One statement decides and takes, so that no other writer comes in between.
bool ClsStock::takeIfEnough(double quantity) {
  return connection_->run(
             "update stock set quantity = round(quantity - ?, 6)"
             " where spbm = ? and round(quantity - ?, 6) >= 0",
             quantity, itemCode_, quantity) != 0;
}

double ClsStock::StockQty() const {
  Rows rows = connection_->query("select quantity from stock where spbm = ?", itemCode_);
  return rows.next() ? rows.number("quantity").value_or(0) : 0;
}

std::string ClsStock::goodsName() const {
  for (const char* statement :
       {"select f_spmc as name from spda where f_spbm = ?",
        "select spmc as name from tmda where spbm = ? and spmc <> '' limit 1"}) {
    Rows rows = connection_->query(statement, itemCode_);
    if (rows.next() && !rows.text("name").empty()) return rows.text("name");
  }
  return itemCode_;
}
