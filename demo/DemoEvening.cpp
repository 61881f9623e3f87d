// The rest of the demo day: members and their cards, a suspended bill, a return, the day's figures,
// the query with its prints and exports, and the settings.
#include "demo/DemoDay.h"
#include "demo/TillMenus.h"
#include "driver/TillDriver.h"

namespace {

constexpr const char* kNewCard = "88001234";

}  // namespace

void DemoDay::evening() {
  setUpDevices("USB");
  TillDriver till(shop_);
  TillMenus menus(till);
  logIn(till, "1", "111");
  till.key("Return");
  till.waitFor("frmSell");
  newMember(till);
  topUp(till);
  memberBill(till);
  suspendedBill(till);
  colours(till);
  till.key("Esc");

  menus.open(TillMenus::kUnSell, "frmUnSell");
  takeBack(till);
  menus.open(TillMenus::kCount);
  handOver(till);
  menus.open(TillMenus::kSearch, "frmSearch");
  query(till);
  menus.open(TillMenus::kKeySet, "frmKeyset");
  shot(till, "keyboard-settings");
  till.tabTo("cmdCancel");
  till.key("Space");
  menus.open(TillMenus::kPractice, "frmSell");
  practise(till);
  menus.open(TillMenus::kShift, "frmShift");
  closeShift(till);
  menus.open(TillMenus::kJournal, "frmJournal");
  till.key("Return");
  till.waitForText("lblState", isEnglish() ? "in all" : "共");
  shot(till, "journal");
  till.key("Esc");
  menus.open(TillMenus::kHelp, "frmHelp");
  shot(till, "help");
  till.key("Esc");
  menus.open(TillMenus::kPosSet);
  till.waitFor("frmPosSet");
  shot(till, "terminal-settings");
  till.tabTo("cmdOk");
  till.key("Space");
  menus.open(TillMenus::kEditPwd);
  till.waitFor("frmEditPwd");
  shot(till, "password-change");
  till.key("Esc");
  menus.end();
}

void DemoDay::newMember(TillDriver& till) {
  till.key("F3");
  till.waitFor("frmFMember");
  till.enter(std::string(";") + kNewCard + "?");
  till.enter("周小梅");
  till.enter("32");
  till.tabTo("txtAddress");
  till.enter("光明路 20 号");
  till.tabTo("txtPhone");
  till.enter("13900001234");
  till.tabTo("zklb2");
  till.key("Down");
  till.tabTo("card");
  till.type("50");
  till.tabTo("password");
  till.type("8888");
  shot(till, "new-member");
  till.tabTo("cmdOk");
  till.key("Return");
  till.waitFor("messageBox");
  till.key("Return");
  till.waitFor("frmSell");
}

void DemoDay::topUp(TillDriver& till) {
  till.key("F9");
  till.waitFor("cardStored");
  till.enter(kNewCard);
  till.enter("100");
  till.enter("110");
  shot(till, "top-up");
  till.tabTo("cmdOk2");
  till.key("Return");
  till.waitFor("messageBox");
  shot(till, "top-up-done");
  till.key("Return");
  till.waitFor("frmSell");
}

void DemoDay::memberBill(TillDriver& till) {
  till.key("F2");
  till.waitFor("frmInput");
  till.type(kNewCard);
  shot(till, "member-card-asked");
  till.key("Return");
  till.waitFor("frmSell");
  till.enter(goods_.plain);
  till.enter(goods_.another);
  shot(till, "member-bill");
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("100");
  till.waitFor("frmSell");
  ++settledBills_;
}

void DemoDay::suspendedBill(TillDriver& till) {
  till.enter(goods_.promoted);
  till.enter(goods_.weighed);
  till.key("F5");
  till.enter(goods_.discounted);
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("20");
  till.waitFor("frmSell");
  ++settledBills_;
  till.key("F6");
  till.waitFor("frmRecord");
  shot(till, "suspended-bills");
  till.key("Return");
  till.waitFor("frmSell");
  shot(till, "bill-recalled");
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("50");
  till.waitFor("frmSell");
  ++settledBills_;
}

void DemoDay::colours(TillDriver& till) {
  constexpr int kColours = 5;  // position in the function menu
  till.key("Menu");
  till.waitFor("myMenu");
  for (int entry = 0; entry < kColours; ++entry) till.key("Down");
  till.key("Return");
  till.waitFor("frmColor");
  shot(till, "colours");
  till.key("Esc");
  till.waitFor("frmSell");
}

void DemoDay::takeBack(TillDriver& till) {
  till.enter("1");
  till.enter(goods_.another);
  till.enter("1");
  shot(till, "return");
  till.key("Return");
  till.waitFor("frmUnSell");
  till.sync();
  shot(till, "return-stored");
  till.key("Esc");
}

void DemoDay::handOver(TillDriver& till) {
  till.waitFor("frmCount");
  shot(till, "statistics");
  till.tabTo("print1");
  till.key("Space");
  till.sync();
  till.key("Esc");
}

// Nothing of it is in the day's books.
void DemoDay::practise(TillDriver& till) {
  till.enter(goods_.plain);
  till.enter(goods_.another);
  till.key("F10");
  till.waitForText("title", isEnglish() ? "Practice" : "练习");
  shot(till, "practice");
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("100");
  till.waitFor("frmSell");
  till.key("Esc");
}

void DemoDay::query(TillDriver& till) {
  const auto run = [&](const char* name) {
    till.tabTo("cmdSearch");
    till.key("Space");
    till.waitForText("lblState", isEnglish() ? "lines." : "行");
    shot(till, name);
  };
  run("query-of-the-day");
  exportList(till, "sales.xlsx");
  exportList(till, "sales.csv");
  till.tabTo("Command2");
  till.key("Space");
  till.sync();

  till.tabTo("zjmtm");
  till.type(goods_.plain);
  run("query-of-one-item");
  till.tabTo("zjmtm");
  till.key("Ctrl+A");
  till.key("Delete");
  till.tabTo("Option1");
  till.key("Right");
  till.tabTo("Combo1");
  till.key("Ctrl+A");
  till.type(goods_.category);
  run("query-of-one-category");
  till.tabTo("Option2");
  till.key("Left");
  till.tabTo("numberSerch");
  till.type("1");
  run("query-of-one-bill");
  till.tabTo("Command3");
  till.key("Space");
  till.sync();
  till.key("Esc");
}

void DemoDay::exportList(TillDriver& till, const char* file) {
  till.tabTo("Command1");
  till.key("Space");
  till.waitFor("dlgExport");
  till.key("Ctrl+A");
  till.type(file);
  shot(till, "export");
  till.key("Return");
  till.waitFor("frmSearch");
  till.waitForText("lblState", isEnglish() ? "Exported" : "已导出");
}
