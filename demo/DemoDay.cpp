#include "demo/DemoDay.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "base/Gbk.h"
#include "driver/TillDriver.h"
#include "platform/IniFile.h"

namespace fs = std::filesystem;

DemoDay::DemoDay(const fs::path& program, const fs::path& out, const std::string& language)
    : out_(out), shop_(out / "shop"), language_(language) {
  fs::remove_all(out_);
  fs::create_directories(out_ / "receipts");
  fs::copy(program, shop_, fs::copy_options::recursive);
  goods_ = DemoGoods::pick(dataFile());
}

void DemoDay::setUpDevices(const char* receiptPort) {
  const IniFile settings(shop_ / "Config.ini");
  const std::pair<const char*, std::string> ports[] = {
      {"LPT1", (out_ / "line-printer.bin").string()},
      {"LPT2", (out_ / "drawer.bin").string()},
      {"COM1", display_.path()},
      {"USB", (out_ / "receipts").string()}};
  for (const auto& [name, path] : ports) settings.write("Ports", name, path);
  settings.write("Till", "ExportFolder", out_.string());
  settings.write("Till", "Language", language_);
  settings.write("POS", "PPort", receiptPort);
  settings.write("POS", "PModel", "1");
  settings.write("POS", "printAmount", "直接打印1联");
  settings.write("POS", "printOption", "打印商品全称");
  settings.write("POS", "MBPort", "LPT2");
  settings.write("POS", "CVProt", "COM1");
  settings.write("POS", "CVModel", "1");
}

void DemoDay::shot(TillDriver& till, const char* name) {
  char file[80];
  std::snprintf(file, sizeof file, "%02d-%s.png", ++shots_, name);
  till.shot(out_ / file);
}

void DemoDay::logIn(TillDriver& till, const char* number, const char* password) {
  till.waitFor("frmMenu");
  till.key("Return");
  till.waitFor("frmLogin");
  till.enter(number);
  till.type(password);
}

void DemoDay::beginShift(TillDriver& till) {
  till.waitFor("dlgCash");
  till.type("200");
  shot(till, "shift-begins");
  till.key("Return");
}

// The shift that was opened in the morning, on another run of the till.
void DemoDay::closeShift(TillDriver& till) {
  shot(till, "shift");
  till.tabTo("cmdOut");
  till.key("Space");
  till.waitFor("dlgCash");
  till.enter("150");
  till.type("付送水费");
  shot(till, "cash-taken-out");
  till.key("Return");
  till.waitFor("frmShift");
  till.tabTo("cmdRead");
  till.key("Space");
  till.waitFor("dlgShiftSheet");
  till.key("Return");
  till.waitFor("frmShift");
  till.tabTo("cmdClose");
  till.key("Space");
  till.waitFor("dlgCashCount");
  for (const char* pieces : {"3", "1", "2", "1", "1", "3", ""}) till.enter(pieces);
  till.type("4");
  shot(till, "drawer-counted-blind");
  till.key("Return");
  till.key("Return");
  till.waitFor("dlgShiftSheet");
  shot(till, "shift-sheet");
  till.key("Return");
  till.waitFor("frmShift");
  shot(till, "shift-closed");
  till.key("Esc");
}

void DemoDay::basketOfEveryKind(TillDriver& till) {
  till.enter(goods_.plain);
  till.enter(goods_.promoted);
  till.enter(goods_.discounted);
  till.enter(goods_.byTheCase);
  till.enter(goods_.weighed);
  // The weight of the goods just rung up.
  till.key("Up");
  till.enter("1.25");
  till.enter(goods_.twice);
  till.waitFor("frmMenu");
  shot(till, "two-goods-one-barcode");
  till.key("Down");
  till.key("Return");
  till.waitFor("frmSell");
  till.enter(goods_.unpriced);
  till.waitFor("frmInput");
  till.type("6.8");
  shot(till, "price-asked");
  till.key("Return");
  till.waitFor("frmSell");
  till.enter(goods_.itemNumber);
}

// What this cashier may not do alone.
void DemoDay::approvals(TillDriver& till) {
  till.key("Up");
  till.key("Right");
  till.enter("0.8");
  till.waitFor("dlgApproval");
  shot(till, "discount-to-be-approved");
  till.key("Esc");
  till.waitFor("frmSell");
  till.key("Down");
  till.key("F10");
  till.waitFor("dlgApproval");
  till.enter("3");
  till.type("333");
  shot(till, "drawer-to-be-approved");
  till.key("Return");
  till.waitFor("frmSell");
}

void DemoDay::morning() {
  setUpDevices("LPT1");
  TillDriver till(shop_);
  till.waitFor("frmMenu");
  shot(till, "main-menu");
  logIn(till, "1", "111");
  shot(till, "login");
  till.key("Return");
  beginShift(till);
  till.waitFor("frmSell");
  shot(till, "empty-bill");

  basketOfEveryKind(till);
  shot(till, "basket");
  till.enter(goods_.another);
  till.key("Up");
  till.enter("3");
  till.key("Up");
  till.key("Right");
  till.enter("0.9");
  shot(till, "quantity-and-discount-corrected");
  till.enter(goods_.plain);
  till.key("F4");
  shot(till, "last-line-deleted");

  till.key("F1");
  till.waitFor("frmEndSell");
  till.type("500");
  shot(till, "settlement-cash");
  till.key("Return");
  till.waitFor("frmSell");
  ++settledBills_;
  shot(till, "next-bill");

  till.enter(goods_.another);
  till.enter(goods_.discounted);
  till.key("F12");
  shot(till, "bill-cancelled");

  till.enter(goods_.plain);
  till.enter(goods_.weighed);
  till.key("F1");
  till.waitFor("frmEndSell");
  till.key("Tab");
  till.type("0.5");
  till.key("Tab");
  till.type("7");
  till.key("Tab");
  till.type("2");
  till.key("Return");
  till.type("50");
  shot(till, "settlement-mixed");
  till.key("Return");
  till.waitFor("frmSell");
  ++settledBills_;

  till.key("Esc");
  till.waitFor("frmMenu");
  till.key("Up");
  till.key("Return");
  if (till.waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly at noon");
}

void DemoDay::afternoon() {
  setUpDevices("USB");
  TillDriver till(shop_);
  logIn(till, "2", "222");
  till.key("Return");
  till.waitFor("frmSell");

  till.enter(goods_.plain);
  till.enter(goods_.promoted);
  till.enter(goods_.byTheCase);
  approvals(till);
  till.key("F1");
  till.waitFor("frmEndSell");
  for (int field = 0; field < 4; ++field) till.key("Tab");
  till.enter(goods_.card);
  till.type(goods_.cardPassword);
  shot(till, "settlement-card");
  till.key("Return");
  till.waitFor("messageBox");
  shot(till, "card-charged");
  till.key("Return");
  till.waitFor("frmSell");
  ++settledBills_;

  basketOfEveryKind(till);
  till.key("F1");
  till.waitFor("frmEndSell");
  till.enter("500");
  till.waitFor("frmSell");
  ++settledBills_;
  till.enter("6900000000000");
  till.waitFor("frmMsg");
  shot(till, "unknown-barcode");
  till.key("Return");
  till.waitFor("frmSell");
  till.key("Menu");
  till.waitFor("myMenu");
  shot(till, "function-menu");
  till.key("Esc");
  till.waitFor("frmSell");

  till.key("Esc");
  till.waitFor("frmMenu");
  till.key("Menu");
  shot(till, "further-menu");
  till.key("Esc");
  till.waitFor("frmMenu");
  till.key("Up");
  till.key("Return");
  if (till.waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly at night");
}

std::string DemoDay::printed() const {
  std::ifstream printed(out_ / "line-printer.bin", std::ios::binary);
  std::stringstream bytes;
  bytes << printed.rdbuf();
  return gbk::decode(bytes.str());
}

void DemoDay::writeTranscripts() const {
  std::ofstream(out_ / "line-printer.txt") << printed();
  std::ofstream display(out_ / "display.txt");
  for (const std::string& figure : display_.shown()) display << figure << "\n";
}
