#include "saleslib/ClsSellItem.h"

#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/Fields.h"
#include "store/Connection.h"
#include "store/StoreError.h"

void ClsSellItem::Init(Connection& connection, std::int32_t billNo, int, Clock clock) {
  *this = ClsSellItem();
  connection_ = &connection;
  clock_ = std::move(clock);
  billNo_ = billNo;
}

ClsSellItem ClsSellItem::fromRow(Connection& connection, const Row& row) {
  ClsSellItem line;
  line.connection_ = &connection;
  line.billNo_ = whole32(row, "sellId");
  line.id_ = whole32(row, "id");
  line.inserted_ = line.saved_ = kFromFile;
  line.entryTime_ = row.dateTime("insert_Date").value_or(DateTime());
  line.price_ = money(row, "price");
  line.cost_ = money(row, "in_price");
  line.quantity_ = row.number("amount").value_or(0);
  line.discount_ = ::Discount(row.number("discount").value_or(1));
  line.ratio_ = whole16(row, "ratio");
  line.entryCode_ = row.text("entry_code");
  line.spName_ = row.text("name");
  line.spCode_ = row.text("bm");
  line.origin_ = row.text("origin");
  line.unit_ = row.text("unit");
  line.category_ = row.text("splbmc");
  return line;
}

void ClsSellItem::Save() {
  ensure(connection_ != nullptr, "a line is bound before it is stored");
  if (Id() == 0) {
    insert();
  } else {
    update();
  }
  saved_ = connection_->writeMark();
}

void ClsSellItem::insert() {
  entryTime_ = clock_();
  const std::optional<std::int64_t> key = connection_->insert(
      "insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price, discount,"
      " money, in_price, splbmc, entry_code, ratio, origin)"
      " values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      billNo_, entryTime_, spCode_, spName_, unit_, quantity_, price_, discount_, Money(), cost_,
      category_, entryCode_, ratio_, origin_);
  id_ = key32(key.value());
  inserted_ = connection_->writeMark();
}

void ClsSellItem::update() {
  const std::int64_t changed = connection_->run(
      "update sellProducts set bm = ?, name = ?, unit = ?, amount = ?, price = ?, discount = ?,"
      " money = ?, in_price = ?, splbmc = ?, entry_code = ?, ratio = ?, origin = ? where id = ?",
      spCode_, spName_, unit_, quantity_, price_, discount_, Money(), cost_, category_, entryCode_,
      ratio_, origin_, id_);
  if (changed == 0) {
    throw StoreError(Words::tr("单据 %1 的商品“%2”已不在数据文件中！", billNo_, spName_));
  }
}

bool ClsSellItem::Changed() const {
  return Id() == 0 || !connection_->stands(saved_);
}

void ClsSellItem::Delete() {
  if (Id() != 0) connection_->run("delete from sellProducts where id = ?", id_);
}

std::int32_t ClsSellItem::Id() const {
  return id_ != 0 && connection_->stands(inserted_) ? id_ : 0;
}

Currency ClsSellItem::Money() const {
  return lineAmount(price_, quantity_, discount_);
}
double ClsSellItem::StockQuantity() const {
  return roundedQuantity(quantity_ * ratio_);
}
