#include "saleslib/ClsSell.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/Fields.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

struct Totals {
  double quantity = 0;
  Currency amount;
  bool operator==(const Totals&) const = default;
};

Totals totalsOf(const ClsSell::Items_t& lines) {
  Totals totals;
  for (const auto& line : lines) {
    totals.quantity = roundedQuantity(totals.quantity + line->Quantity());
    totals.amount += line->Money();
  }
  return totals;
}

std::string tenderAssignments() {
  std::string assignments;
  for (const TenderKind& kind : tenderKinds())
    assignments += std::string(", ") + kind.column + " = ?";
  return assignments;
}

}  // namespace

bool ClsSell::Open(Connection& connection, std::int32_t billNo, std::int32_t operatorId,
                   const Clock& clock) {
  *this = ClsSell();
  connection_ = &connection;
  clock_ = clock;
  if (billNo == 0) {
    return start(operatorId);
  }
  return load(connection.query("select * from sell where id = ?", billNo));
}

bool ClsSell::OpenLastOfMember(Connection& connection, std::int32_t memberId) {
  *this = ClsSell();
  connection_ = &connection;
  return load(connection.query(
      "select * from sell where member_id = ? and state = 1 order by id desc limit 1", memberId));
}

std::shared_ptr<ClsSell> ClsSell::fromRow(Connection& connection, const Row& row) {
  auto bill = std::make_shared<ClsSell>();
  bill->connection_ = &connection;
  bill->read(row);
  return bill;
}

bool ClsSell::start(std::int32_t operatorId) {
  operatorId_ = operatorId;
  sellTime_ = clock_();
  const std::optional<std::int64_t> opened = connection_->insert(
      "insert into sell (sell_time, operator_id) select ?, id from operators where id = ?",
      sellTime_, operatorId);
  if (!opened) return false;
  billNo_ = key32(*opened);
  ensure(billNo_ > 0 && items_.empty() && AddsUp(), "a new bill has a number and no lines");
  return true;
}

bool ClsSell::load(Rows rows) {
  if (!rows.next()) return false;
  read(rows);
  return true;
}

void ClsSell::read(const Row& row) {
  billNo_ = whole32(row, "id");
  operatorId_ = whole32(row, "operator_id");
  sellTime_ = row.dateTime("sell_time").value_or(DateTime());
  state_ = whole16(row, "state");
  paid_ = whole16(row, "paid") != 0;
  quantity_ = row.number("quantity").value_or(0);
  goodsAmount_ = money(row, "goods_amount");
  amount_ = money(row, "amount");
  for (const TenderKind& kind : tenderKinds()) setTendered(kind.tender, money(row, kind.column));
  cardNo_ = row.text("card_no");
  slip_ = row.text("phone_slip");
  salesman_ = whole16(row, "salesman");
  memberId_ = whole32(row, "member_id");
}

void ClsSell::setState(std::int16_t state) {
  ensure(state == kOpen || state == kSettled, "a bill is open or settled");
  state_ = state;
}

void ClsSell::setSlip(std::string code) {
  ensure(code == slipCode(code), "a slip's code is a sound text");
  slip_ = std::move(code);
}

Currency ClsSell::Change() const {
  Currency change = Currency() - amount_;
  for (const Currency figure : tendered_) change += figure;
  return change;
}

bool ClsSell::FiguresFit() const {
  try {
    static_cast<void>(Change());
    static_cast<void>(Cash() - amount_);
    static_cast<void>(amount_ - Favorable());
    return true;
  } catch (const Overflow&) {
    return false;
  }
}

bool ClsSell::AddsUp() const {
  return totalsOf(items_) == Totals{quantity_, goodsAmount_};
}

bool ClsSell::Save() {
  ensure(connection_ != nullptr && billNo_ > 0, "a bill is opened before it is stored");
  ensure(AddsUp(), "a bill's lines add up to the bill");
  errText_.clear();
  try {
    Transaction transaction(*connection_);
    for (const auto& line : items_) {
      if (line->Changed()) line->Save();
    }
    store();
    transaction.commit();
  } catch (const StoreError& error) {
    errText_ = error.what();
  }
  return errText_.empty();
}

bool ClsSell::SavePaid() {
  ensure(state_ == kOpen, "payment is taken for an open bill");
  paid_ = true;
  paid_ = Save();
  ensure(paid_ == Paid(), "only an open bill waits for its settlement");
  return paid_;
}

// The mark goes with the state that settles the bill, in one statement. What is paid for is the
// open shift's from then on.
void ClsSell::store() {
  static const std::string kFigures =
      "update sell set sell_time = ?, state = ?, quantity = ?, goods_amount = ?, amount = ?,"
      " card_no = ?, phone_slip = nullif(?, ''), salesman = ?, member_id = ?, paid = ?" +
      tenderAssignments();
  static const std::string kUpdate = kFigures + " where id = ?";
  static const std::string kPayment =
      kFigures +
      ", shift = (select id from shift where closed is null),"
      " cash_kept = case when exists (select 1 from shift where closed is null) then ? end"
      " where id = ?";
  std::vector<Value> values = {toValue(sellTime_),    toValue(state_),    toValue(quantity_),
                               toValue(goodsAmount_), toValue(amount_),   toValue(cardNo_),
                               toValue(slip_),        toValue(salesman_), toValue(memberId_),
                               toValue(Paid())};
  for (const Currency figure : tendered_) values.push_back(toValue(figure));
  if (Paid()) values.push_back(toValue(Cash() - Change()));
  values.push_back(toValue(billNo_));
  if (connection_->runBound((Paid() ? kPayment : kUpdate).c_str(), std::move(values)) == 0) {
    throw StoreError(Words::tr("单据 %1 已不在数据文件中！", billNo_));
  }
}

void ClsSell::Void() {
  ensure(state_ == kOpen && billNo_ > 0, "a settled bill is never deleted");
  Transaction transaction(*connection_);
  connection_->run("delete from sellProducts where sellId = ?", billNo_);
  connection_->run("delete from sell where id = ?", billNo_);
  transaction.commit();
}

void ClsSell::LoadLines() {
  ensure(connection_ != nullptr && billNo_ > 0, "a stored bill has lines to load");
  items_.clear();
  Rows rows =
      connection_->query("select * from sellProducts where sellId = ? order by id", billNo_);
  while (rows.next()) {
    items_.push_back(std::make_shared<ClsSellItem>(ClsSellItem::fromRow(*connection_, rows)));
  }
  if (state_ == kOpen && !Paid()) {
    Recalculate();
  } else if (!AddsUp()) {
    throw StoreError(
        Words::tr("单据 %1 的商品明细与合计不符，数据文件可能已损坏，请与管理员联系！", billNo_));
  }
}

void ClsSell::AddItem(std::shared_ptr<ClsSellItem> line) {
  ensure(line != nullptr && line->BillNo() == billNo_, "a line joins its own bill");
  ensure(!Paid(), "a bill that was paid keeps its lines");
  const Currency money = line->Money();
  if (items_.empty() && state_ == kOpen) sellTime_ = std::max(sellTime_, line->EntryTime());
  quantity_ = roundedQuantity(quantity_ + line->Quantity());
  goodsAmount_ += money;
  amount_ = goodsAmount_;
  items_.push_back(std::move(line));
}

void ClsSell::RemoveItem(const ClsSellItem& line) {
  ensure(state_ == kOpen && !Paid(), "a bill that was paid keeps its lines");
  const auto gone = std::erase_if(items_, [&](const auto& item) { return item.get() == &line; });
  ensure(gone == 1, "a line leaves its own bill");
  Recalculate();
}

void ClsSell::Recalculate() {
  const Totals totals = totalsOf(items_);
  quantity_ = totals.quantity;
  goodsAmount_ = amount_ = totals.amount;
}
