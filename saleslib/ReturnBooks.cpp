#include "saleslib/ReturnBooks.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/ClsStock.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/ShopLink.h"
#include "saleslib/StoredCard.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kSettled = 1;
constexpr std::int16_t kMayGoNegative = 0;

bool holds(const ClsSell& bill, const ClsSellItem& line) {
  const auto& lines = bill.Items();
  return std::any_of(lines.begin(), lines.end(),
                     [&](const auto& each) { return each.get() == &line; });
}

// The rounding that the customer paid stays in the amount due until nothing of worth is left.
void lowerLine(ClsSell& bill, ClsSellItem& line, double quantity) {
  const Currency rounding = bill.Amount() - bill.GoodsAmount();
  line.setQuantity(roundedQuantity(line.Quantity() - quantity));
  ensure(line.Quantity() >= 0, "no more comes back than the line holds");
  line.Save();
  bill.Recalculate();
  if (!bill.GoodsAmount().isZero()) bill.setAmount(bill.GoodsAmount() + rounding);
}

}  // namespace

ReturnBooks::ReturnBooks(Connection& connection, Clock clock,
                         std::shared_ptr<const ClsOperator> taker)
    : connection_(connection), clock_(std::move(clock)), taker_(std::move(taker)) {
  ensure(taker_ != nullptr, "somebody is logged in who takes goods back");
}

ReturnBooks::Found ReturnBooks::find(std::int32_t billNo) const {
  ensure(billNo > 0, "number 0 would start a new bill");
  auto bill = std::make_shared<ClsSell>();
  if (!bill->Open(connection_, billNo, 0)) return missing(billNo);
  if (bill->State() != kSettled) return {Found::kOpen};
  try {
    bill->LoadLines();
  } catch (const StoreError& damaged) {
    return {Found::kDamaged, nullptr, damaged.what()};
  }
  return {Found::kSettled, std::move(bill)};
}

// What a line still holds is known to the till that sold it.
ReturnBooks::Found ReturnBooks::missing(std::int32_t billNo) const {
  const std::optional<ShopLink> link = shopLink(connection_);
  const auto till = static_cast<int>(billNo / kNumbersPerTill);
  if (!link || till == 0 || till == link->till) return {};
  return {.kind = Found::kElsewhere, .till = till};
}

ClsOperator ReturnBooks::cashierOf(const ClsSell& bill) const {
  ClsOperator cashier;
  cashier.Init(connection_, static_cast<std::int16_t>(bill.OperatorId()));
  return cashier;
}

ClsMember ReturnBooks::memberOf(const ClsSell& bill) const {
  ClsMember member;
  member.Init(connection_, bill.MemberId());
  return member;
}

std::vector<ClsUnSell::Earlier> ReturnBooks::earlier(const ClsSellItem& line) const {
  return ClsUnSell::OfLine(connection_, line.Id());
}

ClsUnSell ReturnBooks::record(const ClsSell& bill, const ClsSellItem& line, double quantity,
                              Currency refund) {
  ClsUnSell record;
  record.Init(connection_, bill.BillNo(), 0, clock_);
  record.setUnQty(quantity);
  record.setUnMoney(refund);
  record.setItemId(line.Id());
  record.setOperatorId(taker_->Id());
  record.setCost(line.Cost());
  record.setRatio(line.Ratio());
  record.setDiscount(line.Discount());
  record.Save();
  ensure(record.UnQty() <= quantity, "a record is of what comes back at most");
  return record;
}

ReturnBooks::Outcome ReturnBooks::takeBack(ClsSell& bill, ClsSellItem& line, double quantity,
                                           Currency refund) {
  ensure(bill.State() == kSettled && bill.AddsUp(), "goods come back against a settled bill");
  ensure(holds(bill, line), "a line is taken back from its own bill");
  ensure(quantity > 0 && refund >= Currency(), "goods come back, and money goes out");
  Transaction all(connection_);
  const Journal journal(connection_);
  const std::string before = journal.isOn() ? billMark(connection_, bill.BillNo()) : "";
  const ClsUnSell returned = record(bill, line, quantity, refund);
  if (!(returned.UnQty() > 0)) return {Outcome::kNothingHeld};
  ClsStock stock;
  stock.Init(connection_, line.SpCode());
  const StockOutcome put =
      stock.Move(-roundedQuantity(returned.UnQty() * line.Ratio()), kMayGoNegative);
  if (!put.done()) return {Outcome::kRefused, put.refusal()};
  lowerLine(bill, line, returned.UnQty());
  if (bill.MemberId() > 0) debitPurchase(connection_, bill.MemberId(), returned.UnMoney());
  if (!bill.Save()) throw StoreError(bill.ErrText());
  journal.note(EntryKind::kGoodsReturned, bill.BillNo(), [&] {
    nlohmann::json body = billRecord(connection_, bill.BillNo());
    body["before"] = before;
    body["return"] = returnRecord(connection_, returned.Id());
    body["item"] = line.SpCode();
    if (bill.MemberId() > 0) {
      body["credit"] = {{"member", bill.MemberId()},
                        {"spent", generalNumber(-returned.UnMoney())},
                        {"points", 0}};
    }
    return body;
  });
  all.commit();
  return {};
}
