#include "till/Till.h"

#include <QApplication>
#include <QScreen>
#include <utility>

#include "goodsin/GoodsCompletion.h"
#include "goodsin/frmGoodsIn.h"
#include "joining/frmJoin.h"
#include "members/cardStored.h"
#include "members/frmFMember.h"
#include "platform/QtText.h"
#include "reports/frmCount.h"
#include "reports/frmJournal.h"
#include "reports/frmReport.h"
#include "reports/frmSearch.h"
#include "returns/frmUnSell.h"
#include "sale/frmSell.h"
#include "saleslib/ClsRights.h"
#include "settings/frmColor.h"
#include "settings/frmHelp.h"
#include "settings/frmKeyset.h"
#include "settings/frmPosSet.h"
#include "setup/frmSetup.h"
#include "shell/ControlKeys.h"
#include "shell/Modal.h"
#include "shell/frmEditPwd.h"
#include "shifts/RequiredShift.h"
#include "shifts/frmShift.h"
#include "shop/GoodsStage.h"
#include "store/Connection.h"

Till::Till(std::filesystem::path folder) : pos_(std::move(folder)) {}
Till::~Till() = default;

bool Till::Main() {
  const std::string refusal = pos_.OpenDataStore();
  if (!refusal.empty()) {
    messageBox(nullptr, qtText(refusal));
    if (!firstStart()) return false;
  }
  const std::string exposed = pos_.protectFiles();
  if (!exposed.empty()) messageBox(nullptr, qtText(exposed), {}, BoxIcon::kExclamation);
  const std::string missing = pos_.missingOperator();
  if (!missing.empty()) messageBox(nullptr, qtText(missing), {}, BoxIcon::kInformation);
  pos_.start();
  checkpoint_ = std::make_unique<QuietCheckpoint>(qApp, *pos_.gConn);
  if (goodsWaiting(*pos_.gConn) > 0) {
    completion_ = std::make_unique<GoodsCompletion>(pos_.gConn->source());
  }
  controlKeys_ = std::make_unique<ControlKeys>(qApp, pos_.gKeyBoard);
  frmSell_ = std::make_unique<frmSell>(pos_, saleScreens(), [this] { frmMain_->close(); });
  frmMain_ = std::make_unique<frmMain>(pos_, screens());
  // Without a window manager nobody else makes it large or gives it the keyboard.
  frmMain_->setGeometry(frmMain_->screen()->availableGeometry());
  frmMain_->showMaximized();
  frmMain_->activateWindow();
  return true;
}

bool Till::firstStart() {
  if (!pos_.lacksDataFile()) return false;
  if (!askYesNo(nullptr, tr("要现在开店吗？"), {}, true)) return false;
  KeyBoard keys;
  keys.LoadSet(pos_.configIni);
  const ControlKeys controlKeys(qApp, keys);
  if (frmSetup(pos_, keys).exec() != QDialog::Accepted) return false;
  const std::string refusal = pos_.OpenDataStore();
  if (!refusal.empty()) messageBox(nullptr, qtText(refusal));
  return refusal.empty();
}

std::map<QString, frmMain::Screen> Till::screens() {
  std::map<QString, frmMain::Screen> all = fixedScreens();
  if (pos_.gSysParam.GoodsImport())
    all["goodsin"] = {true, [this] { show<frmGoodsIn>(pos_); }, Right::kSettings};
  if (pos_.gSysParam.JoinShop())
    all["join"] = {true, [this] { show<frmJoin>(pos_); }, Right::kSettings};
  if (pos_.gSysParam.Practice()) all["practice"] = {true, [this] { practise(); }};
  if (pos_.gSysParam.OwnerReport())
    all["report"] = {true, [this] { reportTakings(); }, Right::kReport};
  if (pos_.gSysParam.KeepsJournal())
    all["journal"] = {true, [this] { showJournal(); }, Right::kJournal};
  if (pos_.gSysParam.Shifts()) all["shift"] = {true, [this] { show<frmShift>(pos_); }};
  return all;
}

std::map<QString, frmMain::Screen> Till::fixedScreens() {
  return {{"sell",
           {true,
            [this] {
              if (requireShift(pos_, QApplication::activeWindow())) frmSell_->openModal();
            }}},
          {"count", {true, [this] { frmCount(pos_, QApplication::activeWindow()).init(); }}},
          {"search", {true, [this] { show<frmSearch>(pos_); }}},
          {"unsell",
           {true,
            [this] {
              if (requireShift(pos_, QApplication::activeWindow())) show<frmUnSell>(pos_);
            }}},
          {"addmen", {true, [this] { show<frmFMember>(pos_); }, Right::kMembers}},
          {"editpwd", {false, [this] { show<frmEditPwd>(pos_); }}},
          {"posset", {true, [this] { show<frmPosSet>(pos_); }, Right::kSettings}},
          {"keyset", {true, [this] { show<frmKeyset>(pos_); }, Right::kSettings}},
          {"help", {false, [this] { help(); }}}};
}

SaleSession::Openers Till::saleScreens() {
  return {{"addmen", {[this] { show<frmFMember>(pos_); }, Right::kMembers}},
          {"topup", {[this] { show<cardStored>(pos_); }, Right::kTopUp}},
          {"search", {[this] { show<frmSearch>(pos_); }}},
          {"color", {[this] { show<frmColor>(pos_); }, Right::kSettings}},
          {"help", {[this] { help(); }}}};
}

void Till::reportTakings() {
  // Where no approvals are asked for, this is the one right that is needed all the same.
  if (pos_.permission.approver() || pos_.gOperator->Rights().HasRight(kRightReport))
    return show<frmReport>(pos_);
  messageBox(QApplication::activeWindow(),
             QCoreApplication::translate("Till", "您没有看经营报表的权限！"));
}

// The sales query and the settings would be the real ones.
void Till::practise() {
  const std::unique_ptr<posMod> practice = pos_.practice();
  frmSell screen(*practice,
                 {{"addmen", {[&practice] { show<frmFMember>(*practice); }, Right::kMembers}},
                  {"topup", {[&practice] { show<cardStored>(*practice); }, Right::kTopUp}},
                  {"help", {[this] { help(); }}}},
                 [] {});
  screen.showPractice();
  screen.openModal();
}

void Till::showJournal() {
  if (pos_.permission.approver() || pos_.gOperator->Rights().HasRight(kRightJournal))
    return show<frmJournal>(pos_);
  messageBox(QApplication::activeWindow(),
             QCoreApplication::translate("Till", "您没有看日志的权限！"));
}

void Till::help() {
  frmHelp(pos_.gKeyBoard, QApplication::activeWindow()).exec();
}

template <class Form>
void Till::show(posMod& pos) {
  Form form(pos, QApplication::activeWindow());
  form.exec();
}
