#include "sale/HeldBills.h"

#include <algorithm>
#include <cstdint>

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
  const std::int32_t number = screen_.chooseHeldBill(sale_.held());
  const auto chosen = std::find_if(sale_.held().begin(), sale_.held().end(),
                                   [&](const auto& bill) { return bill->BillNo() == number; });
  if (chosen == sale_.held().end()) return;
  guarded([&] {
    takeUp(**chosen);
    return true;
  });
}

void HeldBills::takeUp(const ClsSell& held) {
  const auto recalled = books_.recall(held, *sale_.bill(), [](const ClsSell& bill) {
    static_cast<void>(originalPrice(bill));  // it must fit before the bill is taken up
  });
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
