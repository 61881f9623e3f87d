#include "sale/HeldBills.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "sale/Checkout.h"
#include "sale/MemberCard.h"
#include "sale/Sale.h"
#include "sale/SaleDevices.h"
#include "sale/SaleScreen.h"
#include "sale/SaleTexts.h"

void HeldBills::SuspendBill() {
  devices_.receipt.FeedLines(*sale_.bill());
  if (sale_.isEmpty()) return screen_.ShowMessage(tr("没有商品，无需结账！"));
  const bool isHeld = guarded([this] {
    if (sale_.line() != nullptr) sale_.join();
    auto next = books_.hold(*sale_.bill());
    if (next) {
      sale_.hold(std::move(next), books_.cashier().Name());
      return true;
    }
    screen_.messageBox(checkout_.operatorGone());
    return false;
  });
  if (isHeld) checkout_.followLastBill();
}

void HeldBills::RecallBill() {
  if (!sale_.isEmpty()) {
    return screen_.ShowMessage(tr("请先结束或挂起本次销售，再执行调用功能。"));
  }
  guarded([this] {
    std::vector<Sale::Bill> bills = listed();
    if (bills.empty() && books_.isCutOff()) {
      screen_.ShowMessage(tr("没有联网，看不到别台挂的单。"));
      return false;
    }
    const std::int32_t number = screen_.chooseHeldBill(bills);
    const auto chosen = std::find_if(bills.begin(), bills.end(), [number](const auto& bill) {
      return bill->BillNo() == number;
    });
    if (chosen == bills.end()) return false;
    const auto& own = sale_.held();
    const bool isHere = std::any_of(
        own.begin(), own.end(), [number](const auto& bill) { return bill->BillNo() == number; });
    isHere ? takeUp(**chosen) : fetch(**chosen);
    return true;
  });
}

// The other tills' behind the own ones.
std::vector<Sale::Bill> HeldBills::listed() {
  if (books_.keepsHeld()) sale_.keepHeld(books_.held());
  std::vector<Sale::Bill> bills = sale_.held();
  for (Sale::Bill& bill : books_.heldElsewhere()) bills.push_back(std::move(bill));
  return bills;
}

void HeldBills::fetch(const ClsSell& elsewhere) {
  const BillBooks::Fetched fetched = books_.fetchHeld(elsewhere);
  switch (fetched.kind) {
    case BillBooks::Fetched::kHere:
      sale_.keepHeld(books_.held());
      return takeUp(*fetched.bill);
    case BillBooks::Fetched::kGone:
      return screen_.ShowMessage(tr("这张挂单刚刚已被别的收银机调走。"));
    case BillBooks::Fetched::kAway:
      return screen_.ShowMessage(tr("挂着这张单的收银机没有开机或没有联网，拿不过来。"));
    case BillBooks::Fetched::kUnreadable:
      return screen_.ShowMessage(tr("这张挂单读不出来，请告诉店主。"));
    case BillBooks::Fetched::kNoAnswer:
      return screen_.ShowMessage(tr("没有等到这张挂单。它如果稍后交过来，会列在本机的挂单里。"));
  }
}

void HeldBills::takeUp(const ClsSell& held) {
  const auto recalled = books_.recall(held, *sale_.bill(), [](const ClsSell& bill) {
    static_cast<void>(originalPrice(bill));  // it must fit before the bill is taken up
  });
  if (!recalled.bill) return screen_.ShowMessage(tr("这张挂单刚刚已被别的收银机调走。"));
  sale_.recall(recalled, books_.cashier().Name());
  memberCard_.show(recalled.member);
  screen_.show(sale_.picture());
  devices_.receipt.PrintHeader(*sale_.bill());
  for (const auto& line : sale_.bill()->Items()) {
    devices_.display().clientView(line->Price(), CustomerDisplay::kPrice);
    devices_.receipt.PrintLine(*line);
  }
  for (const StockOutcome& refusal : recalled.refusals) {
    screen_.ShowMessage(tr("%1，已从本单中去掉。").arg(sale_texts::refusal(refusal)));
  }
}
