#include "saleslib/ReturnBooks.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/BillAuthority.h"
#include "saleslib/BillOfRecord.h"
#include "saleslib/ClsStock.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/ReturnedLine.h"
#include "saleslib/SharedReturn.h"
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

std::string refusalOf(const BillAuthority::ReturnAnswer& answer, bool isHere) {
  using enum BillAuthority::Reply;
  if (answer.reply == kTooMuch)
    return Words::tr("别的收银机已经退过，这一行现在只剩 %1 可退！", generalNumber(answer.holds));
  if (answer.reply == kUnknown) return Words::tr("服务器上没有这张单据的这一行，不能退货！");
  return isHere ? Words::tr("没有联网，已上传的单据现在不能退货！")
                : Words::tr("没有联网，不能退别台的单！");
}

}  // namespace

ReturnBooks::ReturnBooks(Connection& connection, Clock clock,
                         std::shared_ptr<const ClsOperator> taker, BillAuthority* shop,
                         bool mayGoUnanswered)
    : connection_(connection),
      clock_(std::move(clock)),
      taker_(std::move(taker)),
      shop_(shop),
      mayGoUnanswered_(mayGoUnanswered) {
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

// What a line of another till's bill still holds the server knows.
ReturnBooks::Found ReturnBooks::missing(std::int32_t billNo) const {
  const std::optional<ShopLink> link = shopLink(connection_);
  const auto till = static_cast<int>(billNo / kNumbersPerTill);
  if (!link || till == 0 || till == link->till) return {};
  if (shop_ == nullptr) return {.kind = Found::kElsewhere, .till = till};
  const BillAuthority::BillAnswer answer = shop_->bill(billNo);
  if (answer.reply == BillAuthority::Reply::kUnknown) return {};
  if (answer.reply != BillAuthority::Reply::kDone) return {.kind = Found::kNoAnswer, .till = till};
  try {
    return {Found::kSettled, billOfRecord(connection_, nlohmann::json::parse(answer.record), true)};
  } catch (const std::exception& unreadable) {
    return {Found::kDamaged, nullptr, unreadable.what()};
  }
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
  return ClsUnSell::OfLine(connection_, line.BillNo(), line.Id());
}

bool ReturnBooks::isHere(const ClsSell& bill) const {
  return connection_.query("select 1 from sell where id = ?", bill.BillNo()).next();
}

ClsUnSell ReturnBooks::record(const ClsSell& bill, const ClsSellItem& line, double quantity,
                              Currency refund) {
  ClsUnSell record;
  record.Init(connection_, bill.BillNo(), 0, clock_);
  record.setUnQty(quantity);
  record.setUnMoney(refund);
  record.setItemId(isHere(bill) ? line.Id() : 0);
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
  const bool isShared = shop_ != nullptr && bill.BillNo() >= kNumbersPerTill;
  return isShared ? takeBackAsked(bill, line, quantity, refund)
                  : store(bill, line, quantity, refund, nullptr);
}

ReturnBooks::Outcome ReturnBooks::takeBackAsked(ClsSell& bill, ClsSellItem& line, double quantity,
                                                Currency refund) {
  SharedReturn asked(connection_, *shop_, isHere(bill), mayGoUnanswered_);
  const BillAuthority::ReturnAnswer answer = asked.ask(bill.BillNo(), line.Id(), quantity);
  if (answer.reply != BillAuthority::Reply::kDone)
    return {answer.reply == BillAuthority::Reply::kNone ? Outcome::kNoAnswer : Outcome::kRefused,
            refusalOf(answer, isHere(bill))};
  try {
    Outcome outcome = store(bill, line, quantity, refund, &asked);
    if (outcome.kind != Outcome::kDone) asked.giveUp();
    return outcome;
  } catch (const Failure&) {
    try {
      asked.giveUp();
    } catch (const Failure&) {
      // the next start gives it up
    }
    throw;
  }
}

ReturnBooks::Outcome ReturnBooks::store(ClsSell& bill, ClsSellItem& line, double quantity,
                                        Currency refund, SharedReturn* asked) {
  Transaction all(connection_);
  const ClsUnSell returned = record(bill, line, quantity, refund);
  if (!(returned.UnQty() > 0)) return {Outcome::kNothingHeld};
  ClsStock stock;
  stock.Init(connection_, line.SpCode());
  const StockOutcome put =
      stock.Move(-roundedQuantity(returned.UnQty() * line.Ratio()), kMayGoNegative);
  if (!put.done()) return {Outcome::kRefused, put.refusal()};
  const std::string key = asked == nullptr ? "" : asked->key();
  if (isHere(bill)) {
    storeHere(returned, bill, line, key);
  } else {
    storeElsewhere(returned, bill, line, key);
  }
  if (asked != nullptr) asked->take();
  all.commit();
  return {};
}

void ReturnBooks::storeHere(const ClsUnSell& returned, ClsSell& bill, ClsSellItem& line,
                            const std::string& key) {
  const Journal journal(connection_);
  const std::string before = journal.isOn() ? billMark(connection_, bill.BillNo()) : "";
  lowerLine(bill, line, returned.UnQty());
  if (bill.MemberId() > 0) debitPurchase(connection_, bill.MemberId(), returned.UnMoney());
  if (!bill.Save()) throw StoreError(bill.ErrText());
  journal.note(EntryKind::kGoodsReturned, bill.BillNo(), [&] {
    nlohmann::json body = billRecord(connection_, bill.BillNo());
    body["before"] = before;
    body["return"] = returnRecord(connection_, returned.Id());
    body["item"] = line.SpCode();
    if (!key.empty()) body["key"] = key;
    if (bill.MemberId() > 0) {
      body["credit"] = {{"member", bill.MemberId()},
                        {"spent", generalNumber(-returned.UnMoney())},
                        {"points", 0}};
    }
    return body;
  });
}

// The bill at hand is only looked at: its own till lowers it.
void ReturnBooks::storeElsewhere(const ClsUnSell& returned, ClsSell& bill, ClsSellItem& line,
                                 const std::string& key) {
  connection_.run(
      "insert into return_elsewhere (un_sell, line, bm, name, price) values (?, ?, ?, ?, ?)",
      returned.Id(), line.Id(), line.SpCode(), line.SpName(), line.Price());
  Journal(connection_).note(EntryKind::kGoodsReturned, bill.BillNo(), [&] {
    return nlohmann::json{{"return", returnRecord(connection_, returned.Id())},
                          {"item", line.SpCode()},
                          {"of_line", std::to_string(line.Id())},
                          {"key", key}};
  });
  lowerLine(bill, line, returned.UnQty());
}
