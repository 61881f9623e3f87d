#include "till/Till.h"

#include <QCoreApplication>
#include <utility>

#include "sale/frmSell.h"
#include "shell/Modal.h"

Till::Till(std::filesystem::path folder) : pos_(std::move(folder)) {}
Till::~Till() = default;

bool Till::Main() {
  const std::string refusal = pos_.OpenDataStore();
  if (!refusal.empty()) {
    messageBox(nullptr, QString::fromStdString(refusal));
    return false;
  }
  pos_.start();
  frmSell_ = std::make_unique<frmSell>(pos_, SaleSession::Openers(),
                                       [] { QCoreApplication::exit(0); });
  frmMain_ = std::make_unique<frmMain>(pos_, screens());
  frmMain_->showMaximized();
  return true;
}

std::map<QString, frmMain::Screen> Till::screens() {
  return {{"sell", {true, [this] { frmSell_->openModal(); }}}};
}
