#include "saleslib/BillBooks.h"

#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/ClsDayStat.h"
#include "saleslib/ClsSysParam.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kMayGoNegative = 0;

void save(ClsSell& bill) {
  if (!bill.Save()) throw StoreError(bill.ErrText());
}

}  // namespace

BillBooks::BillBooks(Connection& connection, const ClsSysParam& rules, Clock clock)
    : connection_(connection), rules_(rules), clock_(std::move(clock)) {}

StockOutcome BillBooks::take(const ClsSellItem& line, double quantity, std::int16_t rule) {
  ClsStock stock;
  stock.Init(connection_, line.SpCode());
  return stock.Move(quantity, rule);
}

StockOutcome BillBooks::putBack(const ClsSellItem& line) {
  return take(line, -line.StockQuantity(), kMayGoNegative);
}

std::shared_ptr<ClsSell> BillBooks::open(std::int32_t operatorId) {
  auto bill = std::make_shared<ClsSell>();
  return bill->Open(connection_, 0, operatorId, clock_) ? bill : nullptr;
}

StockOutcome BillBooks::ring(ClsSellItem& line) {
  ensure(line.Id() == 0, "a line is rung once");
  Transaction ringing(connection_);
  const StockOutcome outcome = take(line, line.StockQuantity(), rules_.StockRule());
  if (!outcome.done()) return outcome;
  line.Save();
  ringing.commit();
  ensure(line.Id() != 0, "a rung line is stored");
  return outcome;
}

StockOutcome BillBooks::correct(ClsSellItem& line, ClsSellItem changed) {
  ensure(line.Id() != 0 && line.Id() == changed.Id() && line.SpCode() == changed.SpCode(),
         "a line is corrected by a changed copy of itself");
  Transaction correcting(connection_);
  const double more = roundedQuantity(changed.StockQuantity() - line.StockQuantity());
  const StockOutcome outcome = take(line, more, rules_.StockRule());
  if (!outcome.done()) return outcome;
  changed.Save();
  correcting.commit();
  line = std::move(changed);
  return outcome;
}

StockOutcome BillBooks::remove(ClsSellItem& line) {
  ensure(line.Id() != 0, "only a stored line is removed");
  Transaction removing(connection_);
  const StockOutcome outcome = putBack(line);
  if (!outcome.done()) return outcome;
  line.Delete();
  removing.commit();
  return outcome;
}

std::vector<StockOutcome> BillBooks::cancel(ClsSell& bill, ClsSellItem* line) {
  ensure(bill.State() == 0, "a settled bill is not cancelled");
  ensure(line == nullptr || line->BillNo() == bill.BillNo(), "a line goes with its own bill");
  std::vector<StockOutcome> refusals;
  Transaction cancelling(connection_);
  const auto giveBack = [&](const ClsSellItem& each) {
    if (const StockOutcome outcome = putBack(each); !outcome.done()) refusals.push_back(outcome);
  };
  for (const auto& each : bill.Items()) giveBack(*each);
  if (line != nullptr) giveBack(*line);
  bill.Void();
  cancelling.commit();
  return refusals;
}

std::shared_ptr<ClsSell> BillBooks::hold(ClsSell& bill, std::int32_t operatorId) {
  ensure(!bill.Items().empty(), "an empty bill is not put aside");
  Transaction holding(connection_);
  save(bill);
  auto next = open(operatorId);
  if (next) holding.commit();
  return next;
}

BillBooks::Recalled BillBooks::recall(const ClsSell& held, ClsSell& empty,
                                      const std::function<void(const ClsSell&)>& accept) {
  ensure(empty.BillNo() != held.BillNo(), "a held bill takes the place of another one");
  Recalled recalled;
  recalled.bill = std::make_shared<ClsSell>(held);
  Transaction recalling(connection_);
  drop(empty);
  for (const auto& line : held.Items()) {
    const StockOutcome outcome = putBack(*line);
    if (!outcome.done()) throw StoreError("数量超出范围：" + outcome.goods);
  }
  takeAgain(recalled);
  save(*recalled.bill);
  accept(*recalled.bill);
  if (held.MemberId() > 0) {
    recalled.member = std::make_shared<ClsMember>();
    recalled.member->Init(connection_, held.MemberId());
    if (recalled.member->Id() == 0) recalled.member = nullptr;
  }
  recalling.commit();
  ensure(recalled.stock.size() == recalled.bill->Items().size(), "each line has its stock figure");
  return recalled;
}

void BillBooks::takeAgain(Recalled& recalled) {
  const ClsSell::Items_t lines = recalled.bill->Items();
  for (const auto& line : lines) {
    const StockOutcome outcome = take(*line, line->StockQuantity(), rules_.StockRule());
    if (outcome.done()) {
      recalled.stock.push_back(outcome.left);
      continue;
    }
    line->Delete();
    recalled.bill->RemoveItem(*line);
    recalled.refusals.push_back(outcome);
  }
}

void BillBooks::drop(ClsSell& empty) {
  ensure(empty.State() == 0 && empty.Items().empty(), "only an empty bill goes without its stock");
  empty.Void();
}

std::vector<StockOutcome> BillBooks::cancelOpen(std::int32_t operatorId) {
  ClsDayStat bills;
  bills.OpenQuery(connection_, operatorId);
  std::vector<StockOutcome> refusals;
  for (const auto& bill : bills.Sells()) {
    for (StockOutcome& each : cancel(*bill)) refusals.push_back(std::move(each));
  }
  return refusals;
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

std::string BillBooks::file() const {
  return connection_.source().path.string();
}
