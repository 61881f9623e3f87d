#include "saleslib/BillBooks.h"

#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/BillAuthority.h"
#include "saleslib/BillNotes.h"
#include "saleslib/CardNumber.h"
#include "saleslib/CardPayment.h"
#include "saleslib/ClsDayStat.h"
#include "saleslib/ClsMemberSvc.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/SharedReturn.h"
#include "saleslib/ShiftBooks.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kMayGoNegative = 0;
constexpr std::int16_t kOpen = 0, kSettled = 1;
constexpr const char* kNoShift = Words::mark("还没有开班，不能收款。请回到主菜单，先开班。");

}  // namespace

BillBooks::BillBooks(Connection& connection, const ClsSysParam& rules, Clock clock,
                     std::shared_ptr<const ClsOperator> cashier, CardAuthority* cards,
                     BillAuthority* shop)
    : connection_(connection),
      rules_(rules),
      clock_(std::move(clock)),
      cashier_(std::move(cashier)),
      cards_(cards),
      shop_(shop) {
  ensure(cashier_ != nullptr, "somebody is logged in who keeps the books");
}

StockOutcome BillBooks::take(const ClsSellItem& line, double quantity, std::int16_t rule) {
  ClsStock stock;
  stock.Init(connection_, line.SpCode());
  return stock.Move(quantity, rule);
}

// Without contact this till does not know what came in at the others.
StockOutcome BillBooks::takeByRule(const ClsSellItem& line, double quantity) {
  const std::int16_t rule = rules_.StockRule();
  const bool onlyWarns = shop_ != nullptr && rule != kMayGoNegative && quantity > 0 &&
                         !rules_.OfflineStock() && shop_->isAway();
  StockOutcome outcome = take(line, quantity, onlyWarns ? kMayGoNegative : rule);
  outcome.isDoubtful = onlyWarns && outcome.done() && outcome.left < 0;
  return outcome;
}

StockOutcome BillBooks::putBack(const ClsSellItem& line) {
  return take(line, -line.StockQuantity(), kMayGoNegative);
}

std::shared_ptr<ClsSell> BillBooks::open() {
  auto bill = std::make_shared<ClsSell>();
  Transaction opening(connection_);
  if (!bill->Open(connection_, 0, cashier_->Id(), clock_)) return nullptr;
  BillNotes(connection_).opened(*bill);
  opening.commit();
  return bill;
}

StockOutcome BillBooks::ring(ClsSellItem& line) {
  ensure(line.Id() == 0, "a line is rung once");
  Transaction ringing(connection_);
  StockOutcome outcome = takeByRule(line, line.StockQuantity());
  if (!outcome.done()) return outcome;
  line.Save();
  BillNotes(connection_).rung(line);
  ringing.commit();
  ensure(line.Id() != 0, "a rung line is stored");
  return outcome;
}

StockOutcome BillBooks::correct(ClsSellItem& line, ClsSellItem changed) {
  ensure(line.Id() != 0 && line.Id() == changed.Id() && line.SpCode() == changed.SpCode(),
         "a line is corrected by a changed copy of itself");
  Transaction correcting(connection_);
  const double more = roundedQuantity(changed.StockQuantity() - line.StockQuantity());
  StockOutcome outcome = takeByRule(line, more);
  if (!outcome.done()) return outcome;
  changed.Save();
  BillNotes(connection_).corrected(line, changed);
  correcting.commit();
  line = std::move(changed);
  return outcome;
}

StockOutcome BillBooks::remove(ClsSellItem& line) {
  ensure(line.Id() != 0, "only a stored line is removed");
  Transaction removing(connection_);
  StockOutcome outcome = putBack(line);
  if (!outcome.done()) return outcome;
  BillNotes(connection_).deleted(line);
  line.Delete();
  removing.commit();
  return outcome;
}

std::vector<StockOutcome> BillBooks::cancel(ClsSell& bill, ClsSellItem* line) {
  ensure(bill.State() == kOpen, "a settled bill is not cancelled");
  ensure(line == nullptr || line->BillNo() == bill.BillNo(), "a line goes with its own bill");
  std::vector<StockOutcome> refusals;
  Transaction cancelling(connection_);
  const auto giveBack = [&](const ClsSellItem& each) {
    if (const StockOutcome outcome = putBack(each); !outcome.done()) refusals.push_back(outcome);
  };
  for (const auto& each : bill.Items()) giveBack(*each);
  if (line != nullptr) giveBack(*line);
  BillNotes(connection_).left(EntryKind::kBillCancelled, bill, line);
  bill.Void();
  cancelling.commit();
  return refusals;
}

void BillBooks::drop(ClsSell& empty) {
  ensure(empty.State() == kOpen && !empty.Paid() && empty.Items().empty(),
         "only an empty bill goes without its stock");
  Transaction dropping(connection_);
  BillNotes(connection_).left(EntryKind::kBillCancelled, empty);
  empty.Void();
  dropping.commit();
}

std::vector<StockOutcome> BillBooks::cancelOpen() {
  ClsDayStat bills;
  bills.OpenQuery(connection_, cashier_->Id());
  std::vector<StockOutcome> refusals;
  for (const auto& bill : bills.Sells()) {
    for (StockOutcome& each : cancel(*bill)) refusals.push_back(std::move(each));
  }
  return refusals;
}

std::optional<StoredCard> BillBooks::payingCard(const std::string& typed) const {
  return findStoredCard(connection_, payingCardNumbers(typed));
}

bool BillBooks::hasShift() const {
  return !rules_.Shifts() || isShiftOpen(connection_);
}

std::string BillBooks::markPaid(ClsSell& bill) {
  ensure(bill.CardPay().isZero(), "a card is charged together with the mark");
  if (!hasShift()) return Words::tr(kNoShift);
  if (!bill.SavePaid()) return bill.ErrText();
  ensure(bill.Paid() && !connection_.inTransaction(), "a payment is durable before it is shown");
  return {};
}

CardResult BillBooks::payByCard(ClsSell& bill, const std::string& password) {
  ensure(bill.CardPay() == roundedToFen(bill.Amount()), "a card pays all that is due");
  ensure(!bill.Paid(), "a bill is paid once");
  if (!hasShift()) throw StoreError(Words::tr(kNoShift));
  CardResult result =
      CardPayment(connection_, rules_.OfflineCardLimit(), cards_).pay(bill, password);
  ensure(!connection_.inTransaction(), "a payment is durable before it is shown");
  return result;
}

bool BillBooks::settle(ClsSell& bill) {
  return settleAs(EntryKind::kBillSettled, bill);
}

bool BillBooks::settleAs(EntryKind kind, ClsSell& bill) {
  ensure(bill.Paid(), "a bill is stored as settled after its payment is durable");
  bill.setState(kSettled);
  try {
    Transaction settling(connection_);
    if (bill.Save()) {
      BillNotes(connection_).settled(kind, bill, creditMember(bill));
      settling.commit();
      return true;
    }
  } catch (const Failure&) {
    // not stored
  }
  bill.setState(kOpen);
  ensure(bill.Paid(), "a payment stays what it was when its bill cannot be stored");
  return false;
}

Credit BillBooks::creditMember(const ClsSell& bill) {
  if (bill.MemberId() == 0) return {};
  try {
    return creditPurchase(connection_, bill.MemberId(), bill.Amount(), rules_.PointUnit());
  } catch (const StoreError&) {
    return {};
  }
}

std::vector<BillBooks::PaidBill> BillBooks::completePaid() {
  CardPayment(connection_, rules_.OfflineCardLimit(), cards_).giveUpUnpaid();
  if (shop_ != nullptr) SharedReturn::giveUpUnfinished(connection_);
  ClsDayStat bills;
  bills.PaidQuery(connection_);
  std::vector<PaidBill> paid;
  for (const auto& bill : bills.Sells()) {
    paid.push_back({bill});
    try {
      bill->LoadLines();
      paid.back().isSettled = settleAs(EntryKind::kBillCompleted, *bill);
    } catch (const Failure& failure) {
      paid.back().fault = failure.what();
    }
  }
  return paid;
}

std::shared_ptr<ClsSell> BillBooks::lastSettled() const {
  return ClsDayStat().LastSell(connection_);
}

std::shared_ptr<ClsSell> BillBooks::lastPurchase(const ClsMember& member) const {
  auto latest = std::make_shared<ClsSell>();
  if (!latest->OpenLastOfMember(connection_, member.Id())) return nullptr;
  latest->LoadLines();
  return latest;
}

ClsDayStat BillBooks::today() const {
  ClsDayStat day;
  day.DayQuery(connection_, clock_().date, 0, cashier_->Id());
  return day;
}

std::shared_ptr<ClsMember> BillBooks::member(std::int32_t id) const {
  if (id == 0) return nullptr;
  ClsMemberSvc members;
  members.Conn(connection_);
  return members.GetMemberById(id);
}

std::string BillBooks::file() const {
  return connection_.source().path.string();
}

std::string BillBooks::fileFault() const {
  return connection_.fileFault();
}
