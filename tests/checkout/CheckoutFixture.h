#pragma once

#include "ShopFixture.h"
#include "base/NumberText.h"
#include "checkout/CashDrawer.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"
#include "checkout/Messages.h"
#include "checkout/PaidBill.h"
#include "checkout/Settlement.h"
#include "saleslib/BillBooks.h"

/// The shop with an open bill, its devices, and lines entered and payments taken as the sale screen
/// does it.
class CheckoutFixture : public ShopFixture {
 protected:
  CheckoutFixture() { openNext(); }

  void openNext() { bill = books.open(pos.gOperator->Id()); }
  void enter(const std::string& name, const char* price, double quantity = 1,
             const char* code = "1001", double discount = 1, std::int16_t ratio = 1) {
    auto line = std::make_shared<ClsSellItem>();
    line->Init(*pos.gConn, bill->BillNo(), 0, pos.clock);
    line->setSpCode("1001");
    line->setSpName(name);
    line->setEntryCode(code);
    line->setPrice(Currency::parse(price).value());
    line->setQuantity(quantity);
    line->setDiscount(Discount(discount));
    line->setRatio(ratio);
    EXPECT_TRUE(books.ring(*line).done());
    bill->AddItem(line);
    receipt.PrintLine(*line);
  }
  Settlement settlement() {
    return {pos, *bill, display, screen,
            [this] { receipt.PrintFoot(*bill, member.get(), originalPrice); }};
  }
  /// The settle key, and a cashier who types that cash figure.
  void payCash(const char* cash) {
    settlement().confirmCash(cash);
    EXPECT_TRUE(storeSettled(pos, *bill));
    openNext();
  }
  void attachMember() {
    member = pos.gMemberSvc.GetMember("8001");
    bill->setMemberId(member->Id());
  }
  void showOn(const char* port, int model = 1) {
    pos.gPosSet.CVProt = port;
    pos.gPosSet.CVModel = model;
    display.OpenDisplayPort();
  }

  Told<Messages> screen;
  const Outage::Report report = [this](const QString& text) { screen.ShowMessage(text); };
  CustomerDisplay display{ports, pos.gPosSet, report};
  CashDrawer drawer{ports, pos.gPosSet, display, report};
  LineReceipt receipt{pos, drawer, report};
  BillBooks books{*pos.gConn, pos.gSysParam, pos.clock};
  std::shared_ptr<ClsSell> bill;
  std::shared_ptr<ClsMember> member;
  std::int64_t originalPrice = 0;
};
