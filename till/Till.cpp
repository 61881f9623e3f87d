#include "till/Till.h"

#include <utility>

#include "shell/Modal.h"

Till::Till(std::filesystem::path folder) : pos_(std::move(folder)) {}

bool Till::Main() {
  const std::string refusal = pos_.OpenDataStore();
  if (!refusal.empty()) {
    messageBox(nullptr, QString::fromStdString(refusal));
    return false;
  }
  pos_.start();
  frmMain_ = std::make_unique<frmMain>(pos_, screens());
  frmMain_->showMaximized();
  return true;
}

std::map<QString, frmMain::Screen> Till::screens() {
  return {};
}
