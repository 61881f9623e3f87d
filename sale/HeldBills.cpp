#include "sale/HeldBills.h"

#include <QStringList>
#include <algorithm>
#include <cstdint>
#include <vector>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "checkout/Checkout.h"
#include "checkout/CurrentLine.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "devices/Devices.h"
#include "sale/LineRow.h"
#include "sale/MemberCard.h"
#include "sale/OriginalPrice.h"
#include "saleslib/ClsStock.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

QString text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

/// A held bill as it goes on, and all that the screen shows of it.
struct HeldBills::Recalled {
  std::shared_ptr<ClsSell> bill;
  std::shared_ptr<ClsMember> member;
  std::vector<BillRow> rows;
  QStringList refusals;
  std::int64_t origTotal = 0;
};

HeldBills::HeldBills(posMod& pos, SaleState& state, SaleScreen& screen, Checkout& checkout,
                     MemberCard& memberCard, Devices& devices, LineReceipt& receipt)
    : pos_(pos),
      state_(state),
      screen_(screen),
      checkout_(checkout),
      memberCard_(memberCard),
      devices_(devices),
      receipt_(receipt) {}

void HeldBills::SuspendBill() {
  receipt_.FeedLines(*state_.curBill);
  if (!state_.curLine && state_.curBill->Items().empty()) {
    screen_.ShowMessage(tr("没有商品，无需结账！"));
    return;
  }
  std::shared_ptr<ClsSell> next;
  try {
    if (state_.curLine) joinCurrentLine(state_);
    next = putAside();
  } catch (const Failure& failure) {
    screen_.rowsChanged();
    screen_.PlaceEditor();
    screen_.messageBox(text(failure.what()));
    return;
  }
  state_.heldBills.push_back(std::move(state_.curBill));
  state_.origTotal = 0;
  screen_.setStatus({});
  checkout_.ShowNextBill(std::move(next));
}

std::shared_ptr<ClsSell> HeldBills::putAside() {
  Transaction suspending(*pos_.gConn);
  if (!state_.curBill->Save()) throw StoreError(state_.curBill->ErrText());
  auto next = checkout_.openBill();
  suspending.commit();
  return next;
}

void HeldBills::RecallBill() {
  if (state_.curLine || !state_.curBill->Items().empty()) {
    screen_.ShowMessage(tr("请先结束或挂起本次销售，再执行调用功能。"));
    return;
  }
  const std::int32_t number = screen_.chooseHeldBill(state_.heldBills);
  const auto chosen = std::find_if(state_.heldBills.begin(), state_.heldBills.end(),
                                   [&](const auto& bill) { return bill->BillNo() == number; });
  if (chosen == state_.heldBills.end()) return;
  Recalled recalled;
  try {
    recalled = takeUp(**chosen);
  } catch (const Failure& failure) {
    screen_.messageBox(text(failure.what()));
    return;
  }
  state_.heldBills.erase(chosen);
  show(std::move(recalled));
}

// Works on a copy of the bill: the held one is as it was until the data file has the change.
HeldBills::Recalled HeldBills::takeUp(const ClsSell& held) {
  Recalled recalled;
  recalled.bill = std::make_shared<ClsSell>(held);
  Transaction recalling(*pos_.gConn);
  state_.curBill->Void();
  putBackStock(held);
  takeAgain(recalled);
  if (!recalled.bill->Save()) throw StoreError(recalled.bill->ErrText());
  recalled.origTotal = originalPrice(recalled.rows);
  if (held.MemberId() > 0) recalled.member = pos_.gMemberSvc.GetMemberById(held.MemberId());
  recalling.commit();
  return recalled;
}

void HeldBills::putBackStock(const ClsSell& held) {
  for (const auto& line : held.Items()) {
    ClsStock stock;
    stock.Init(*pos_.gConn, line->SpCode());
    if (!stock.PutBack(line->StockQuantity())) throw StoreError(stock.ErrText());
  }
}

void HeldBills::takeAgain(Recalled& recalled) {
  const ClsSell::Items_t lines = recalled.bill->Items();
  for (const auto& line : lines) {
    ClsStock stock;
    stock.Init(*pos_.gConn, line->SpCode());
    if (stock.TakeOut(line->StockQuantity(), 0, pos_.gSysParam.StockRule())) {
      recalled.rows.push_back(lineRow(*pos_.gConn, *line, recalled.rows.size() + 1));
      recalled.rows.back().tag = line->Id();
      continue;
    }
    line->Delete();
    recalled.bill->RemoveItem(*line);
    recalled.refusals << text(stock.ErrText());
  }
}

void HeldBills::show(Recalled recalled) {
  state_.curBill = std::move(recalled.bill);
  const ClsSell& bill = *state_.curBill;
  checkout_.ShowBillNo();
  state_.rows = std::move(recalled.rows);
  state_.origTotal = recalled.origTotal;
  state_.AddEntryRow();
  state_.onEntryRow = true;
  for (const auto& line : bill.Items()) {
    devices_.display().clientView(line->Price(), CustomerDisplay::kPrice);
  }
  screen_.setStatus(text(generalNumber(bill.Quantity())) + tr("件商品，合计") +
                    text(generalNumber(bill.Amount())) + tr("元"));
  memberCard_.show(std::move(recalled.member));
  screen_.rowsChanged();
  screen_.PlaceEditor();
  printAgain();
  for (const QString& refusal : recalled.refusals) {
    screen_.ShowMessage(refusal + tr("，已从本单中去掉。"));
  }
}

void HeldBills::printAgain() {
  receipt_.PrintHeader(*state_.curBill);
  for (const auto& line : state_.curBill->Items()) receipt_.PrintLine(*line);
}
