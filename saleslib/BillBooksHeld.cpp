#include "base/Failure.h"
#include "saleslib/BillAuthority.h"
#include "saleslib/BillBooks.h"
#include "saleslib/BillNotes.h"
#include "saleslib/ClsDayStat.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Fields.h"
#include "saleslib/HeldBasket.h"
#include "saleslib/ShopLink.h"
#include "saleslib/Sodium.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kOpen = 0;

void save(ClsSell& bill) {
  if (!bill.Save()) throw StoreError(bill.ErrText());
}

}  // namespace

std::shared_ptr<ClsSell> BillBooks::hold(ClsSell& bill) {
  ensure(!bill.Items().empty(), "an empty bill is not put aside");
  ensure(bill.State() == kOpen && !bill.Paid(), "a bill that was paid is not put aside");
  Transaction holding(connection_);
  save(bill);
  if (keepsHeld()) connection_.run("update sell set held = 1 where id = ?", bill.BillNo());
  BillNotes(connection_).left(EntryKind::kBillSuspended, bill);
  auto next = open();
  if (next) holding.commit();
  return next;
}

std::vector<std::shared_ptr<ClsSell>> BillBooks::held() const {
  ClsDayStat bills;
  if (keepsHeld()) bills.HeldQuery(connection_);
  return bills.Sells();
}

std::vector<std::shared_ptr<ClsSell>> BillBooks::heldElsewhere() const {
  std::vector<std::shared_ptr<ClsSell>> bills;
  if (shop_ == nullptr) return bills;
  for (const BillAuthority::HeldBill& each : shop_->heldElsewhere()) {
    try {
      bills.push_back(heldBill(connection_, each.basket));
    } catch (const StoreError&) {
      // one that cannot be read hides no other
    }
  }
  return bills;
}

bool BillBooks::isCutOff() const {
  return shop_ != nullptr && shop_->isAway();
}

BillBooks::Fetched BillBooks::fetchHeld(const ClsSell& elsewhere) {
  using enum BillAuthority::Reply;
  ensure(shop_ != nullptr, "what is held elsewhere is a shop's");
  const auto till = static_cast<int>(elsewhere.BillNo() / kNumbersPerTill);
  const std::string key = randomDigits(16);
  const BillAuthority::HandOver given = shop_->handOver(key, till, elsewhere.BillNo());
  if (given.reply == kAway) return {Fetched::kAway};
  if (given.reply == kNone) return {Fetched::kNoAnswer};
  if (given.reply != kDone) return {Fetched::kGone};
  const std::int64_t number = receiveHeld(connection_, key, given.basket);
  if (number == 0) return {Fetched::kUnreadable};
  auto bill = std::make_shared<ClsSell>();
  if (!bill->Open(connection_, key32(number), 0, clock_)) return {Fetched::kGone};
  bill->LoadLines();
  return {Fetched::kHere, std::move(bill)};
}

// Whoever goes on with it takes the money. It may have been given up since it was listed.
std::shared_ptr<ClsSell> BillBooks::takenUp(const ClsSell& held) {
  if (!keepsHeld()) return std::make_shared<ClsSell>(held);
  const std::int64_t isThere =
      connection_.run("update sell set held = 0, operator_id = ? where id = ? and held = 1",
                      cashier_->Id(), held.BillNo());
  if (isThere == 0) return nullptr;
  auto bill = std::make_shared<ClsSell>();
  ensure(bill->Open(connection_, held.BillNo(), 0, clock_), "what was changed is there");
  bill->LoadLines();
  return bill;
}

BillBooks::Recalled BillBooks::recall(const ClsSell& held, ClsSell& empty,
                                      const std::function<void(const ClsSell&)>& accept) {
  ensure(empty.BillNo() != held.BillNo(), "a held bill takes the place of another one");
  ensure(held.State() == kOpen && held.AddsUp(), "a held bill is open, and what its lines are");
  Transaction recalling(connection_);
  Recalled recalled;
  recalled.bill = takenUp(held);
  if (!recalled.bill) return recalled;
  drop(empty);
  const ClsSell::Items_t lines = recalled.bill->Items();
  for (const auto& line : lines) {
    const StockOutcome outcome = putBack(*line);
    if (!outcome.done()) throw StoreError(outcome.refusal());
  }
  takeAgain(recalled);
  save(*recalled.bill);
  BillNotes(connection_).left(EntryKind::kBillRecalled, *recalled.bill);
  accept(*recalled.bill);
  recalled.member = member(held.MemberId());
  recalling.commit();
  ensure(recalled.stock.size() == recalled.bill->Items().size(), "each line has its stock figure");
  return recalled;
}

void BillBooks::takeAgain(Recalled& recalled) {
  const ClsSell::Items_t lines = recalled.bill->Items();
  for (const auto& line : lines) {
    const StockOutcome outcome = takeByRule(*line, line->StockQuantity());
    if (outcome.done()) {
      recalled.stock.push_back(outcome.left);
      continue;
    }
    line->Delete();
    recalled.bill->RemoveItem(*line);
    recalled.refusals.push_back(outcome);
  }
}
