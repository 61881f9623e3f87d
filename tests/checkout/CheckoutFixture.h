#pragma once

#include "ShopFixture.h"
#include "base/NumberText.h"
#include "checkout/LineReceipt.h"
#include "checkout/Messages.h"
#include "checkout/PaidBill.h"
#include "checkout/ReceiptLines.h"
#include "checkout/Settlement.h"
#include "devices/Devices.h"
#include "saleslib/BillBooks.h"

/// The shop with an open bill, its devices, and lines entered and payments taken as the sale screen
/// does it.
class CheckoutFixture : public ShopFixture {
 protected:
  CheckoutFixture() { openNext(); }

  void openNext() { bill = books.open(); }
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
    line->setCost(Currency::parse("1.2").value());
    EXPECT_TRUE(books.ring(*line).done());
    bill->AddItem(line);
    receipt.PrintLine(*line);
  }
  Settlement settlement() {
    return {books, *bill, devices.display(), screen, [this] { receipt.PrintFoot(*bill, facts()); }};
  }
  /// The settle key, and a cashier who types that cash figure.
  void payCash(const char* cash) {
    settlement().confirmCash(cash);
    EXPECT_TRUE(books.settle(*bill));
    openNext();
  }
  void attachMember() {
    member = pos.gMemberSvc.GetMember("8001");
    bill->setMemberId(member->Id());
  }
  ReceiptFacts facts() const { return {pos.gOperator->Code(), member, originalPrice}; }
  /// Devices at these ports; "" is none.
  void connect(const char* printer, const char* kick = "", const char* shown = "",
               int paperModel = 1) {
    pos.gPosSet.PPort = printer;
    pos.gPosSet.MBPort = kick;
    pos.gPosSet.CVProt = shown;
    pos.gPosSet.PModel = paperModel;
    devices.open(pos.gPosSet);
    receipt.begin();
  }

  Told<Messages> screen;
  const Outage::Report report = [this](const std::string& text) {
    screen.messages.push_back(text);
  };
  Devices devices{ports, report, report};
  LineReceipt receipt{pos.gSysParam, devices};
  BillBooks books = pos.billBooks();
  std::shared_ptr<ClsSell> bill;
  std::shared_ptr<ClsMember> member;
  std::int64_t originalPrice = 0;
};
