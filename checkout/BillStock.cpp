#include "checkout/BillStock.h"

#include <vector>

#include "app/posMod.h"
#include "checkout/SaleScreen.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "store/Transaction.h"

namespace {

// A message box must not keep a transaction open: the refusal is shown after its end.
template <class Movement>
bool moveStock(posMod& pos, SaleScreen& screen, const std::string& itemCode, Movement move,
               const std::function<void()>& write) {
  ClsStock stock;
  stock.Init(*pos.gConn, itemCode);
  {
    Transaction moving(*pos.gConn);
    if (move(stock)) {
      write();
      moving.commit();
      return true;
    }
  }
  screen.ShowMessage(QString::fromStdString(stock.ErrText()));
  return false;
}

}  // namespace

bool TakeStock(posMod& pos, SaleScreen& screen, const std::string& itemCode, double quantity,
               const std::function<void()>& write) {
  const auto take = [&](ClsStock& stock) {
    return stock.TakeOut(quantity, 0, pos.gSysParam.StockRule());
  };
  return moveStock(pos, screen, itemCode, take, write);
}

bool ReturnStock(posMod& pos, SaleScreen& screen, const std::string& itemCode, double quantity,
                 const std::function<void()>& write) {
  const auto putBack = [&](ClsStock& stock) { return stock.PutBack(quantity); };
  return moveStock(pos, screen, itemCode, putBack, write);
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
