#include "checkout/BillStock.h"

#include <vector>

#include "app/posMod.h"
#include "checkout/SaleScreen.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "store/Transaction.h"

bool TakeStock(posMod& pos, SaleScreen& screen, const std::string& itemCode, double quantity) {
  ClsStock stock;
  stock.Init(*pos.gConn, itemCode);
  const bool taken = stock.TakeOut(quantity, 0, pos.gSysParam.StockRule());
  if (!taken) screen.ShowMessage(QString::fromStdString(stock.ErrText()));
  return taken;
}

bool ReturnStock(posMod& pos, SaleScreen& screen, const std::string& itemCode, double quantity) {
  ClsStock stock;
  stock.Init(*pos.gConn, itemCode);
  const bool accepted = stock.PutBack(quantity);
  if (!accepted) screen.ShowMessage(QString::fromStdString(stock.ErrText()));
  return accepted;
}

void VoidBill(posMod& pos, SaleScreen& screen, ClsSell& bill) {
  // Refusals are shown after the commit: a message box must not keep a transaction open.
  std::vector<std::string> refusals;
  Transaction voiding(*pos.gConn);
  for (const auto& line : bill.Items()) {
    ClsStock stock;
    stock.Init(*pos.gConn, line->SpCode());
    if (!stock.PutBack(line->StockQuantity())) refusals.push_back(stock.ErrText());
  }
  bill.Void();
  voiding.commit();
  for (const std::string& text : refusals) screen.ShowMessage(QString::fromStdString(text));
}
