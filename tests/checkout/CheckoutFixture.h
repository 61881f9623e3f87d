#pragma once

#include "SaleFixture.h"
#include "base/NumberText.h"
#include "checkout/BillStock.h"
#include "checkout/CurrentLine.h"

/// The sale fixture with an open bill and lines entered as the sale screen enters them.
class CheckoutFixture : public SaleFixture {
 protected:
  CheckoutFixture() { checkout.PrepareNextBill(); }

  /// Enters a line; it is the current line until the next one or the settlement.
  void enter(const std::string& name, const char* price, double quantity = 1,
             const char* code = "1001", double discount = 1, std::int16_t ratio = 1) {
    if (state.curLine) commitCurrentLine(state, receipt);
    state.curLine = std::make_shared<ClsSellItem>();
    ClsSellItem& line = *state.curLine;
    line.Init(*pos.gConn, state.curBill->BillNo(), 0, pos.clock);
    line.setSpCode("1001");
    line.setSpName(name);
    line.setEntryCode(code);
    line.setPrice(Currency::parse(price).value());
    line.setQuantity(quantity);
    line.setDiscount(Discount(discount));
    line.setRatio(ratio);
    EXPECT_TRUE(TakeStock(pos, screen, line.SpCode(), line.StockQuantity(), [&] { line.Save(); }));

    auto& cells = state.rows.back().cells;
    cells[BillRow::kName] = name;
    cells[BillRow::kPrice] = twoDecimals(line.Price());
    cells[BillRow::kQuantity] = generalNumber(quantity);
    cells[BillRow::kDiscount] = generalNumber(discount);
    cells[BillRow::kMoney] = twoDecimals(line.Money());
    cells[BillRow::kSpCode] = line.SpCode();
    state.AddEntryRow();
  }

  /// The settle key, and a cashier who types that cash figure.
  void payCash(const char* cash) {
    screen.pay = [cash](Settlement& s) { s.confirmCash(cash); };
    checkout.SettleBill();
  }

  void attachMember() {
    state.curMember = pos.gMemberSvc.GetMember("8001");
    state.curBill->setMemberId(state.curMember->Id());
  }

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
  /// What prints the footer once payment is confirmed.
  std::function<void()> footer() {
    return [this] { receipt.PrintFoot(*state.curBill, facts()); };
  }
};
