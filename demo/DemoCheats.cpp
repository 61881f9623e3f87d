// The demo day's late shifts: two cashiers try what an owner who is away has to fear, and the
// supervisor approves whatever they ask for.
#include <stdexcept>
#include <string>

#include "demo/DemoDay.h"
#include "demo/TillMenus.h"
#include "driver/TillDriver.h"
#include "saleslib/ShiftBooks.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

constexpr const char* kFloat = "200";

/// Of the first row; throws when there is none.
Currency onlySum(Rows rows) {
  if (!rows.next()) throw std::runtime_error("the late shifts left no such figure");
  return rows.currency("figure").value_or(Currency());
}

std::int64_t onlyNumber(Rows rows) {
  if (!rows.next()) throw std::runtime_error("the late shifts left no such bill");
  return rows.whole("number").value_or(0);
}

void approve(TillDriver& till) {
  till.waitFor("dlgApproval");
  till.enter("3");
  till.enter("333");
}

/// Types what is in the drawer, in the fewest notes and coins.
void countDrawer(TillDriver& till, Currency left) {
  till.waitFor("dlgCashCount");
  for (const Currency piece : kCashPieces) {
    const std::int64_t pieces = left.scaled() / piece.scaled();
    left -= Currency::fromScaled(pieces * piece.scaled());
    till.enter(pieces == 0 ? "" : std::to_string(pieces));
  }
  if (!left.isZero()) throw std::runtime_error("no coins make up what is in the drawer");
}

}  // namespace

void DemoDay::lateShifts() {
  setUpDevices("LPT1");
  TillDriver till(shop_);
  TillMenus menus(till);
  logIn(till, "2", "222");
  till.key("Return");
  till.waitFor("dlgCash");
  till.enter(kFloat);
  till.waitFor("frmSell");
  openWithoutSale(till);
  refundToOneself(till, menus);
  menus.open(TillMenus::kShift, "frmShift");
  till.tabTo("cmdClose");
  till.key("Space");
  closeCounted(till, -cheats_.pocketed, "shift-sheet-short");

  menus.open(TillMenus::kExit, "frmLogin");
  till.enter("4");
  till.enter("444");
  menus.open(TillMenus::kSell);
  till.waitFor("dlgCash");
  till.enter(kFloat);
  till.waitFor("frmSell");
  cancelWhatWasPaid(till);
  menus.open(TillMenus::kShift, "frmShift");
  till.tabTo("cmdClose");
  till.key("Space");
  approve(till);
  closeCounted(till, cheats_.cancelled, "shift-sheet-over");
  menus.end();
}

// What is taken out of the drawer then nobody sees before it is counted.
void DemoDay::openWithoutSale(TillDriver& till) {
  till.enter(goods_.plain);
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("100");
  till.waitFor("frmSell");
  ++settledBills_;
  till.key("F10");
  approve(till);
  till.waitFor("frmSell");
  cheats_.pocketed = Currency::fromYuan(50);
  till.key("Esc");
}

// The goods stay with their customer. What the drawer should hold becomes less by what the cashier
// takes, so that the count does not show it.
void DemoDay::refundToOneself(TillDriver& till, TillMenus& menus) {
  menus.open(TillMenus::kUnSell, "frmUnSell");
  const auto shop = openDataFile({dataFile(), kBuiltInPassword});
  cheats_.returnedBill =
      onlyNumber(shop->query("select max(id) as number from sell where state = 1"));
  cheats_.refund =
      onlySum(shop->query("select amount as figure from sell where id = ?", cheats_.returnedBill));
  till.enter(std::to_string(cheats_.returnedBill));
  till.enter(goods_.plain);
  till.enter("1");
  till.key("Return");
  till.waitFor("dlgApproval");
  shot(till, "refund-to-be-approved");
  approve(till);
  till.waitFor("frmUnSell");
  till.sync();
  till.key("Esc");
}

// The customer pays and goes. The cashier takes the bill back, and would like to take the cash,
// too.
void DemoDay::cancelWhatWasPaid(TillDriver& till) {
  till.enter(goods_.plain);
  till.enter(goods_.another);
  till.sync();
  const auto shop = openDataFile({dataFile(), kBuiltInPassword});
  cheats_.cancelledBill = onlyNumber(shop->query("select id as number from sell where state = 0"));
  cheats_.cancelled = onlySum(shop->query(
      "select sum(money) as figure from sellProducts where sellId = ?", cheats_.cancelledBill));
  till.key("F1");
  till.waitFor("frmEndSell");
  till.type("100");
  till.key("Esc");
  till.waitFor("frmSell");
  till.key("F12");
  till.waitFor("dlgApproval");
  shot(till, "cancelling-to-be-approved");
  approve(till);
  till.waitFor("frmSell");
  till.key("Esc");
}

void DemoDay::closeCounted(TillDriver& till, Currency over, const char* picture) {
  const auto shop = openDataFile({dataFile(), kBuiltInPassword});
  countDrawer(till, ShiftBooks(*shop).current().value().expected() + over);
  till.key("Return");
  till.waitFor("dlgShiftSheet");
  shot(till, picture);
  till.key("Return");
  till.waitFor("frmShift");
  till.key("Esc");
}
