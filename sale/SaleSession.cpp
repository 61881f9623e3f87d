#include "sale/SaleSession.h"

#include <algorithm>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/PaidBill.h"
#include "platform/QtText.h"
#include "platform/VirtualKey.h"
#include "sale/TopUpReport.h"
#include "saleslib/Journal.h"
#include "saleslib/TopUpBooks.h"

namespace {

constexpr int kModifiers[] = {16, 17, 18};  // Shift, Ctrl, Alt

}  // namespace

SaleSession::SaleSession(posMod& pos, SaleScreen& screen, Openers openers)
    : pos_(pos),
      screen_(screen),
      openers_(std::move(openers)),
      books_(pos.billBooks()),
      devices_(*pos.ports, pos.gPosSet, pos.gSysParam, screen),
      part_(sale_, books_, screen, devices_),
      checkout_(part_),
      lines_(part_, checkout_),
      memberCard_(part_, pos.gMemberSvc),
      held_(part_, checkout_, memberCard_) {
  fillCommands();
  fillMenu();
}

bool SaleSession::open() {
  devices_.open();
  completePaidBills(books_, screen_);
  TopUpBooks topUps = pos_.topUpBooks();
  reportIncompleteTopUps(topUps, screen_);
  checkout_.tell(books_.cancelOpen());
  sale_.keepHeld(books_.held());
  sale_.follow(books_.lastSettled());
  if (clockIsBehind()) {
    screen_.messageBox(tr("电脑系统时间错误！\n%1").arg(lastBillDated()), tr("致命错误"));
    screen_.endProgram();
    return false;
  }
  checkout_.PrepareNextBill();
  show();
  return sale_.bill() != nullptr;
}

bool SaleSession::clockIsBehind() const {
  return sale_.last() && sale_.last()->SellTime().date > pos_.clock().date;
}

// One bill of a day when the clock was ahead would keep the shop closed until that day.
QString SaleSession::lastBillDated() const {
  return tr("单据 %1 的时间是 %2，今天却是 %3。\n请先看电脑的日期对不对；电脑对了，"
            "就请店主改正这张单据：\ntilladmin bill redate %4 %1")
      .arg(sale_.last()->BillNo())
      .arg(qtText(generalText(sale_.last()->SellTime())), qtText(dateText(pos_.clock().date)),
           qtText(books_.file()));
}

// The order is the one in which a key mapped twice finds its command.
void SaleSession::fillCommands() {
  commands_ = {
      {&KeyBoard::mLeft, [this] { return sale_.selectCell(-1); }},
      {&KeyBoard::mUp,
       [this] {
         sale_.selectLine();
         return true;
       }},
      {&KeyBoard::mRight, [this] { return sale_.selectCell(1); }},
      {&KeyBoard::mDown,
       [this] {
         sale_.selectEntry();
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
  commands_.push_back({&KeyBoard::mF4, [this] { return lines_.DeleteCurrentLine(); }});
  add(&KeyBoard::mF5, [this] { held_.SuspendBill(); });
  add(&KeyBoard::mF6, [this] { held_.RecallBill(); });
  addOpener(&KeyBoard::mF8, "search");
  addOpener(&KeyBoard::mF9, "topup");
  commands_.push_back(
      {&KeyBoard::mF10, [this] { return allowed(Right::kDrawer, [this] { openDrawer(); }); }});
  addOpener(&KeyBoard::mF11, "search");
  commands_.push_back({&KeyBoard::mF12, [this] { return lines_.CancelBill(); }});
  add(&KeyBoard::mEsc, [this] { exit(); });
}

void SaleSession::addOpener(int KeyBoard::*key, const QString& screen) {
  const auto found = openers_.find(screen);
  if (found == openers_.end()) return;
  commands_.push_back({key, [this, &opener = found->second] { return open(opener); }});
}

bool SaleSession::open(const Opener& opener) {
  if (opener.right) return allowed(*opener.right, opener.open);
  opener.open();
  return true;
}

// Without leave the key press did nothing, and what stands in the input line stays.
bool SaleSession::allowed(Right right, const std::function<void()>& deed) {
  const Permit permit = screen_.leave({right});
  if (permit) deed();
  return permit != nullptr;
}

SaleSession::Entries SaleSession::allMenuEntries() {
  return {{tr("结    账"), "sell"},      {tr("挂    起"), "wait"},    {tr("调    入"), "load"},
          {tr("打印机开关"), "isprint"}, {tr("本单撤消"), "delsell"}, {tr("颜色设置"), "color"},
          {tr("退    出"), "exit"},      {tr("帮    助"), "help"}};
}

void SaleSession::fillMenu() {
  menu_ = {{"sell", [this] { checkout_.SettleBill(); }},
           {"wait", [this] { held_.SuspendBill(); }},
           {"load", [this] { held_.RecallBill(); }},
           {"isprint", [this] { toggleLinePrint(); }},
           {"delsell", [this] { (void)lines_.CancelBill(); }},
           {"exit", [this] { exit(); }}};
  for (const char* screen : {"color", "search", "help"}) {
    const auto found = openers_.find(screen);
    if (found != openers_.end())
      menu_[screen] = [this, &opener = found->second] { (void)open(opener); };
  }
}

bool SaleSession::key(int code, const QString& text) {
  if (std::find(std::begin(kModifiers), std::end(kModifiers), code) != std::end(kModifiers))
    return false;
  sale_.type(text);
  const bool used = run(code);
  if (used || sale_.input() != text) show();
  return used;
}

bool SaleSession::run(int code) {
  code = pos_.gKeyBoard.meaning(code);
  if (const KeyCommand* command = commandFor(commands_, pos_.gKeyBoard, code)) {
    if (command->run()) sale_.replaceInput();
    return true;
  }
  return quickKey(code);
}

void SaleSession::textComing(const QString& text) {
  sale_.type(text);
  if (sale_.input() != text) show();
}

bool SaleSession::mayRepeat(int code, const QString& text) const {
  const KeyBoard& keys = pos_.gKeyBoard;
  if (code == vk::kEnter) return false;
  if (commandFor(commands_, keys, code) == nullptr) return quickKeyFor(code, text) == nullptr;
  return code == keys.mLeft || code == keys.mRight || code == keys.mUp || code == keys.mDown;
}

// Quick keys work on an empty input line only. One without an item code is none: with nothing on
// the input line, Enter would settle.
const clsQk* SaleSession::quickKeyFor(int code, const QString& text) const {
  if (code == 0 || !text.isEmpty()) return nullptr;
  const std::vector<clsQk>& quickKeys = pos_.gKeyBoard.QK;
  const auto quick = std::find_if(quickKeys.begin(), quickKeys.end(), [code](const clsQk& each) {
    return each.QK_int == code && !each.QK_Bm.empty();
  });
  return quick == quickKeys.end() ? nullptr : &*quick;
}

bool SaleSession::quickKey(int code) {
  const clsQk* quick = quickKeyFor(code, sale_.input());
  if (quick == nullptr) return false;
  lines_.EnterQuickKey(qtText(quick->QK_Bm));
  sale_.replaceInput();
  return true;
}

void SaleSession::listClicked() {
  if (sale_.isEmpty()) return;
  sale_.selectEntry();
  show();
}

void SaleSession::menu(const QString& entry) {
  const auto found = menu_.find(entry);
  if (found == menu_.end()) return;
  found->second();
  show();
}

SaleSession::Entries SaleSession::menuEntries() const {
  Entries entries = allMenuEntries();
  std::erase_if(entries, [this](const auto& entry) { return !menu_.contains(entry.second); });
  return entries;
}

// Without a sale, so the journal comes first: what it cannot tell of is not done.
void SaleSession::openDrawer() {
  if (!devices_.drawer().isConfigured()) return;
  try {
    pos_.journal().note(EntryKind::kDrawerOpened);
    devices_.drawer().OpenDrawer();
  } catch (const Failure& failure) {
    screen_.messageBox(qtText(failure.what()));
  }
}

void SaleSession::toggleLinePrint() {
  devices_.receipt.toggle();
  switch (devices_.printerKind()) {
    case ReceiptPrinter::Kind::kNone:
      return screen_.ShowMessage(tr("没有设置打印机，打印机开关保持关闭。"));
    case ReceiptPrinter::Kind::kPage:
      return screen_.ShowMessage(tr("USB 打印机不逐行打印，打印机开关保持关闭。"));
    case ReceiptPrinter::Kind::kLine:
      screen_.ShowMessage(devices_.receipt.isOn() ? tr("打印机已打开。") : tr("打印机已关闭。"));
  }
}

// A row that cannot be deleted now is voided when the screen opens next.
void SaleSession::exit() {
  if (!sale_.isEmpty() || (!sale_.held().empty() && !books_.keepsHeld())) {
    screen_.ShowMessage(tr("还没结束销售或还有挂起单子，不能退出。"));
    return;
  }
  try {
    books_.drop(*sale_.bill());
  } catch (const Failure& failure) {
    screen_.messageBox(qtText(failure.what()));
  }
  sale_.clear();
  devices_.close();
  left_ = true;
}
