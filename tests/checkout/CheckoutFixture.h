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
  void enter(const std::string& name, const char* price, double quantity = 1) {
    if (state.curLine) commitCurrentLine(state, receipt);
    state.curLine = std::make_shared<ClsSellItem>();
    ClsSellItem& line = *state.curLine;
    line.Init(*pos.gConn, state.curBill->BillNo(), 0, pos.clock);
    line.setSpCode("1001");
    line.setSpName(name);
    line.setPrice(Currency::parse(price).value());
    line.setQuantity(quantity);
    EXPECT_TRUE(TakeStock(pos, screen, line.SpCode(), line.StockQuantity(), [&] { line.Save(); }));

    auto& cells = state.rows.back().cells;
    cells[BillRow::kName] = name;
    cells[BillRow::kPrice] = twoDecimals(line.Price());
    cells[BillRow::kQuantity] = generalNumber(quantity);
    cells[BillRow::kDiscount] = "1";
    cells[BillRow::kMoney] = twoDecimals(line.Money());
    cells[BillRow::kSpCode] = line.SpCode();
    state.AddEntryRow();
  }

  /// The settle key, and a cashier who types that cash figure.
  void payCash(const char* cash) {
    screen.pay = [cash](Settlement& s) { s.confirmCash(cash); };
    checkout.SettleBill();
  }

  /// From now on no row of that table ("sell", "sell when new.state = 1") can be changed.
  void breakStore(const char* table) {
    pos.gConn->runScript(std::string("create trigger broken before update on ") + table +
                         " begin select raise(abort, 'disk'); end");
  }

  void attachMember() {
    state.curMember = pos.gMemberSvc.GetMember("8001");
    state.curBill->setMemberId(state.curMember->Id());
  }
};
