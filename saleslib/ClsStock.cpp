#include "saleslib/ClsStock.h"

#include <cmath>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr double kLargestMovement = 1e12;
constexpr std::int16_t kMayGoNegative = 0;

}  // namespace

std::string StockOutcome::refusal() const {
  ensure(!done(), "what was done has no refusal");
  if (kind == kOutOfRange) return Words::tr("数量超出范围：%1", goods);
  return Words::tr("库存不足：%1现有库存 %2", goods, generalNumber(left));
}

void ClsStock::Init(Connection& connection, std::string itemCode) {
  connection_ = &connection;
  itemCode_ = std::move(itemCode);
  errText_.clear();
}

bool ClsStock::PutBack(double quantity, int) {
  return moveAlone(-quantity, kMayGoNegative);
}

bool ClsStock::TakeOut(double quantity, int, std::int16_t stockRule) {
  return moveAlone(quantity, stockRule);
}

bool ClsStock::moveAlone(double quantity, std::int16_t stockRule) {
  ensure(connection_ != nullptr, "an item is chosen before its stock moves");
  Transaction moving(*connection_);
  const StockOutcome outcome = Move(quantity, stockRule);
  errText_.clear();
  if (outcome.done()) {
    moving.commit();
  } else {
    errText_ = outcome.refusal();
  }
  return outcome.done();
}

// A negative take (a line of negative quantity) fills the stock, which no rule refuses.
StockOutcome ClsStock::Move(double quantity, std::int16_t stockRule) {
  ensure(connection_ != nullptr && connection_->inTransaction(),
         "stock moves together with what it moves for");
  if (!std::isfinite(quantity) || std::abs(quantity) > kLargestMovement) {
    return refused(StockOutcome::kOutOfRange, 0);
  }
  const double before = StockQty();
  const double left = roundedQuantity(before - quantity);
  if (stockRule != kMayGoNegative && quantity > 0 && left < 0) {
    return refused(StockOutcome::kShort, before);
  }
  add(-quantity);
  return {.left = left, .goods = {}};
}

StockOutcome ClsStock::refused(StockOutcome::Kind kind, double left) const {
  return {kind, left, Words::tr("%1（%2）", goodsName(), itemCode_)};
}

void ClsStock::add(double quantity) {
  if (quantity == 0) return;
  const std::int64_t changed = connection_->run(
      "update stock set quantity = round(quantity + ?, 6) where spbm = ?", quantity, itemCode_);
  ensure(changed <= 1, "an item has one stock");
  if (changed != 0) return;
  connection_->run("insert into stock (spbm, quantity) values (?, round(?, 6))", itemCode_,
                   quantity);
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
