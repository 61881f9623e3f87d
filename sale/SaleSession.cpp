#include "sale/SaleSession.h"

#include <algorithm>

#include "app/posMod.h"
#include "base/Failure.h"
#include "checkout/BillStock.h"
#include "checkout/PaidBill.h"
#include "checkout/SaleScreen.h"
#include "platform/VirtualKey.h"
#include "sale/TopUpReport.h"
#include "saleslib/ClsDayStat.h"
#include "store/Connection.h"
#include "store/StoreError.h"

namespace {

constexpr int kModifiers[] = {16, 17, 18};  // Shift, Ctrl, Alt

Outage::Report reportTo(SaleScreen& screen) {
  return [&screen](const QString& text) { screen.ShowMessage(text); };
}

// The display's reason is the system's own, and comes in the system's box.
Outage::Report boxOf(SaleScreen& screen) {
  return [&screen](const QString& text) { screen.messageBox(text); };
}

}  // namespace

SaleSession::SaleSession(posMod& pos, SaleScreen& screen, Openers openers)
    : pos_(pos),
      screen_(screen),
      openers_(std::move(openers)),
      display_(pos.ports, pos.gPosSet, state, boxOf(screen)),
      drawer_(pos.ports, pos.gPosSet, state, display_, reportTo(screen)),
      receipt_(pos, state, drawer_, reportTo(screen)),
      checkout_(pos, state, screen, display_, receipt_),
      cell_(state, screen),
      lookup_(pos, state, screen),
      lines_(pos, state, screen, cell_, lookup_, checkout_, display_, receipt_),
      memberCard_(pos, state, screen, checkout_),
      held_(pos, state, screen, checkout_, memberCard_, display_, receipt_) {
  fillCommands();
  fillMenu();
}

bool SaleSession::open() {
  ensure(pos_.gOperator != nullptr, "somebody is logged in before the sale screen opens");
  loadSettings();
  completePaidBills(pos_, screen_);
  reportIncompleteTopUps(pos_, screen_);
  voidOpenBills();
  if (clockIsBehind()) {
    screen_.messageBox(tr("电脑系统时间错误！") + "\n" + lastBillDated(), tr("致命错误"));
    screen_.endProgram();
    return false;
  }
  checkout_.PrepareNextBill();
  return state.curBill != nullptr;
}

void SaleSession::loadSettings() {
  const ClsPosSet& settings = pos_.gPosSet;
  state.linePrint = !settings.PPort.empty() && settings.PPort != "USB";
  if (!settings.PPort.empty()) state.receiptCols = ReceiptColumns::forModel(settings.PModel);
  state.hasDrawer = !settings.MBPort.empty();
  state.hasDisplay = !settings.CVProt.empty();
  if (state.hasDisplay) display_.OpenDisplayPort();
}

void SaleSession::voidOpenBills() {
  ClsDayStat bills;
  bills.OpenQuery(*pos_.gConn, pos_.gOperator->Id());
  for (const auto& bill : bills.Sells()) VoidBill(pos_, screen_, *bill);
  state.lastBill = bills.LastSell(*pos_.gConn);
}

bool SaleSession::clockIsBehind() const {
  return state.lastBill && state.lastBill->SellTime().date > pos_.clock().date;
}

// One bill of a day when the clock was ahead would keep the shop closed until that day.
QString SaleSession::lastBillDated() const {
  return tr("单据 %1 的时间是 %2，今天却是 %3。\n请先看电脑的日期对不对；电脑对了，"
            "就请店主改正这张单据：\ntilladmin bill redate %4 %1")
      .arg(state.lastBill->BillNo())
      .arg(QString::fromStdString(generalText(state.lastBill->SellTime())),
           QString::fromStdString(dateText(pos_.clock().date)),
           QString::fromStdString(pos_.gConn->source().path.string()));
}

// The order is the one in which a key mapped twice finds its command.
void SaleSession::fillCommands() {
  commands_ = {
      {&KeyBoard::mLeft, [this] { return cell_.moveColumn(-1); }},
      {&KeyBoard::mUp,
       [this] {
         cell_.MoveRow(true);
         return true;
       }},
      {&KeyBoard::mRight, [this] { return cell_.moveColumn(1); }},
      {&KeyBoard::mDown,
       [this] {
         cell_.MoveRow(false);
         return true;
       }},
      {&KeyBoard::mEnter,
       [this] {
         lines_.Enter();
         return false;
       }},
  };
  const auto add = [this](int KeyBoard::*key, std::function<void()> action) {
    commands_.push_back({key, [action = std::move(action)] {
                           action();
                           return true;
                         }});
  };
  add(&KeyBoard::mF1, [this] { checkout_.SettleBill(); });
  add(&KeyBoard::mF2, [this] { memberCard_.AttachMember(); });
  addOpener(&KeyBoard::mF3, "addmen");
  add(&KeyBoard::mF4, [this] { lines_.DeleteCurrentLine(); });
  add(&KeyBoard::mF5, [this] { held_.SuspendBill(); });
  add(&KeyBoard::mF6, [this] { held_.RecallBill(); });
  addOpener(&KeyBoard::mF8, "search");
  addOpener(&KeyBoard::mF9, "topup");
  add(&KeyBoard::mF10, [this] { drawer_.OpenDrawer(); });
  addOpener(&KeyBoard::mF11, "search");
  add(&KeyBoard::mF12, [this] { lines_.CancelBill(); });
  add(&KeyBoard::mEsc, [this] { exit(); });
}

void SaleSession::addOpener(int KeyBoard::*key, const QString& screen) {
  const auto found = openers_.find(screen);
  if (found == openers_.end()) return;
  commands_.push_back({key, [open = found->second] {
                         open();
                         return true;
                       }});
}

void SaleSession::fillMenu() {
  menu_ = {{"sell", tr("结    账"), [this] { checkout_.SettleBill(); }},
           {"wait", tr("挂    起"), [this] { held_.SuspendBill(); }},
           {"load", tr("调    入"), [this] { held_.RecallBill(); }},
           {"isprint", tr("打印机开关"), [this] { toggleLinePrint(); }},
           {"delsell", tr("本单撤消"), [this] { lines_.CancelBill(); }}};
  const auto add = [this](const QString& entry, const QString& caption) {
    const auto found = openers_.find(entry);
    if (found != openers_.end()) menu_.push_back({entry, caption, found->second});
  };
  add("color", tr("颜色设置"));
  menu_.push_back({"exit", tr("退    出"), [this] { exit(); }});
  add("search", {});
}

bool SaleSession::key(int code) {
  if (std::find(std::begin(kModifiers), std::end(kModifiers), code) != std::end(kModifiers))
    return false;
  textComing();
  code = pos_.gKeyBoard.meaning(code);
  if (const KeyCommand* command = commandFor(commands_, pos_.gKeyBoard, code)) {
    if (command->run()) state.clearOnKey = true;
    return true;
  }
  return quickKey(code);
}

void SaleSession::textComing() {
  if (!state.clearOnKey) return;
  state.clearOnKey = false;
  screen_.setInput({});
}

bool SaleSession::mayRepeat(int code) const {
  const KeyBoard& keys = pos_.gKeyBoard;
  if (code == vk::kEnter) return false;
  if (commandFor(commands_, keys, code) == nullptr) return quickKeyFor(code) == nullptr;
  return code == keys.mLeft || code == keys.mRight || code == keys.mUp || code == keys.mDown;
}

// Quick keys work on an empty input line only. One without an item code is none: with nothing on
// the input line, Enter would settle.
const clsQk* SaleSession::quickKeyFor(int code) const {
  if (code == 0 || !screen_.input().isEmpty()) return nullptr;
  const std::vector<clsQk>& quickKeys = pos_.gKeyBoard.QK;
  const auto quick = std::find_if(quickKeys.begin(), quickKeys.end(), [code](const clsQk& each) {
    return each.QK_int == code && !each.QK_Bm.empty();
  });
  return quick == quickKeys.end() ? nullptr : &*quick;
}

bool SaleSession::quickKey(int code) {
  const clsQk* quick = quickKeyFor(code);
  if (quick == nullptr) return false;
  lines_.EnterQuickKey(QString::fromStdString(quick->QK_Bm));
  state.clearOnKey = true;
  return true;
}

void SaleSession::listClicked() {
  if (state.rows.size() > 1) cell_.toEntryRow();
}

void SaleSession::menu(const QString& entry) {
  const auto found = std::find_if(menu_.begin(), menu_.end(),
                                  [&](const MenuCommand& command) { return command.key == entry; });
  if (found != menu_.end()) found->run();
}

std::vector<std::pair<QString, QString>> SaleSession::menuEntries() const {
  std::vector<std::pair<QString, QString>> listed;
  for (const MenuCommand& command : menu_) {
    if (!command.caption.isEmpty()) listed.emplace_back(command.key, command.caption);
  }
  return listed;
}

void SaleSession::toggleLinePrint() {
  const std::string& port = pos_.gPosSet.PPort;
  const bool possible = !port.empty() && port != "USB";
  state.linePrint = possible && !state.linePrint;
  if (possible) {
    screen_.ShowMessage(state.linePrint ? tr("打印机已打开。") : tr("打印机已关闭。"));
  } else {
    screen_.ShowMessage(port.empty() ? tr("没有设置打印机，打印机开关保持关闭。")
                                     : tr("USB 打印机不逐行打印，打印机开关保持关闭。"));
  }
}

// A row that cannot be deleted now is voided when the screen opens next.
void SaleSession::exit() {
  if (!state.curBill->Items().empty() || state.curLine || !state.heldBills.empty()) {
    screen_.ShowMessage(tr("还没结束销售或还有挂起单子，不能退出。"));
    return;
  }
  try {
    state.curBill->Void();
  } catch (const StoreError& failure) {
    screen_.messageBox(QString::fromStdString(failure.what()));
  }
  state.lastBill = nullptr;
  state.curBill = nullptr;
  state.curMember = nullptr;
  display_.close();
  left_ = true;
}
