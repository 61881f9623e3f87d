#include "till/Till.h"

#include <QApplication>
#include <QScreen>
#include <utility>

#include "goodsin/GoodsCompletion.h"
#include "goodsin/frmGoodsIn.h"
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
  if (pos_.gSysParam.GoodsImport()) all["goodsin"] = {true, [this] { show<frmGoodsIn>(); }};
  if (pos_.gSysParam.OwnerReport()) all["report"] = {true, [this] { reportTakings(); }};
  if (pos_.gSysParam.KeepsJournal()) all["journal"] = {true, [this] { showJournal(); }};
  return all;
}

std::map<QString, frmMain::Screen> Till::fixedScreens() {
  return {{"sell", {true, [this] { frmSell_->openModal(); }}},
          {"count", {true, [this] { frmCount(pos_, QApplication::activeWindow()).init(); }}},
          {"search", {true, [this] { show<frmSearch>(); }}},
          {"unsell", {true, [this] { takeBack(); }}},
          {"addmen", {true, [this] { show<frmFMember>(); }}},
          {"editpwd", {false, [this] { show<frmEditPwd>(); }}},
          {"posset", {true, [this] { show<frmPosSet>(); }}},
          {"keyset", {true, [this] { show<frmKeyset>(); }}},
          {"help", {false, [this] { help(); }}}};
}

SaleSession::Openers Till::saleScreens() {
  return {{"addmen", [this] { show<frmFMember>(); }},
          {"topup", [this] { show<cardStored>(); }},
          {"search", [this] { show<frmSearch>(); }},
          {"color", [this] { show<frmColor>(); }},
          {"help", [this] { help(); }}};
}

void Till::takeBack() {
  frmUnSell(pos_.gKeyBoard, pos_.returnBooks(), QApplication::activeWindow()).exec();
}

void Till::reportTakings() {
  if (pos_.gOperator->Rights().HasRight(kRightReport)) return show<frmReport>();
  messageBox(QApplication::activeWindow(),
             QCoreApplication::translate("Till", "您没有看经营报表的权限！"));
}

void Till::showJournal() {
  if (pos_.gOperator->Rights().HasRight(kRightJournal)) return show<frmJournal>();
  messageBox(QApplication::activeWindow(),
             QCoreApplication::translate("Till", "您没有看日志的权限！"));
}

void Till::help() {
  frmHelp(pos_.gKeyBoard, QApplication::activeWindow()).exec();
}

template <class Form>
void Till::show() {
  Form form(pos_, QApplication::activeWindow());
  form.exec();
}
