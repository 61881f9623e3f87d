#include "setup/frmSetup.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "app/posMod.h"
#include "platform/VirtualKey.h"
#include "setup/ColoursPage.h"
#include "setup/DevicesPage.h"
#include "setup/GoodsPage.h"
#include "setup/PeoplePage.h"
#include "setup/ReceiptPage.h"
#include "setup/RulesPage.h"
#include "setup/SettingsFile.h"
#include "setup/StartPage.h"
#include "setup/dlgMaking.h"
#include "shell/Modal.h"
#include "store/DataSource.h"

namespace {

constexpr QSize kSize(960, 690);

}  // namespace

frmSetup::frmSetup(posMod& pos, const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent), pos_(pos), stack_(new QStackedWidget) {
  setObjectName("frmSetup");
  setWindowTitle(tr("开店"));
  readSettings(pos.configIni, answers_.till, answers_.shop);
  addPages();
  lblStep_ = label("Label1", {});
  cmdBack_ = button("cmdBack", tr("上一步"));
  cmdNext_ = button("cmdNext", {});
  cmdCancel_ = button("cmdCancel", tr("退出(&E)"));
  connect(cmdBack_, &QPushButton::clicked, this, &frmSetup::back);
  connect(cmdNext_, &QPushButton::clicked, this, &frmSetup::next);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmSetup::cancel);
  layOut();
  show(*pages_.front());
}

void frmSetup::addPages() {
  pages_ = {new StartPage(answers_),
            new DevicesPage(answers_, pos_),
            new ReceiptPage(answers_, pos_.clock),
            new PeoplePage(answers_),
            new GoodsPage(answers_, keys()),
            new RulesPage(answers_),
            new ColoursPage(answers_)};
  for (SetupPage* page : pages_) {
    page->keepAtTop();
    for (const auto& [control, action] : page->enterActions()) onEnter(control, action);
    stack_->addWidget(page);
  }
}

void frmSetup::layOut() {
  auto* hint = label("lblHint", tr("Enter 往下走，上下键选择，PageDown 下一步，PageUp 上一步，"
                                   "Esc 退出"));
  auto* frame = new QFrame;
  frame->setObjectName("Frame1");
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(20, 16, 20, 16);
  inside->addWidget(stack_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 16, 24, 16);
  layout->setSpacing(12);
  layout->addWidget(lblStep_);
  layout->addWidget(frame, 1);
  layout->addWidget(hint);
  layout->addLayout(buttonRow({cmdBack_, cmdNext_, cmdCancel_}));
  resize(kSize);
}

std::vector<SetupPage*> frmSetup::path() const {
  if (answers_.shop.from == NewShop::From::kAnswers) return pages_;
  return {pages_.front(), pages_[1], pages_.back()};
}

void frmSetup::show(SetupPage& page) {
  page_ = &page;
  const std::vector<SetupPage*> pages = path();
  const auto at = std::ranges::find(pages, &page) - pages.begin();
  lblStep_->setText(tr("第 %1 步：%2").arg(at + 1).arg(page.title()));
  cmdBack_->setEnabled(at > 0);
  const bool isLast = at + 1 == std::ssize(pages) && at > 0;
  cmdNext_->setText(isLast ? tr("开店") : tr("下一步"));
  page.enter();
  stack_->setCurrentWidget(&page);
  std::vector<QWidget*> controls = page.controls();
  for (QWidget* control : {static_cast<QWidget*>(cmdNext_), static_cast<QWidget*>(cmdBack_),
                           static_cast<QWidget*>(cmdCancel_)}) {
    controls.push_back(control);
  }
  walkThrough(controls);
  focusWhole(controls.front());
}

void frmSetup::next() {
  const QString refused = page_->take();
  if (!refused.isEmpty()) {
    messageBox(this, refused, {}, BoxIcon::kInformation);
    focusWhole(page_->wrong());
    return;
  }
  const std::vector<SetupPage*> pages = path();
  const auto at = std::ranges::find(pages, page_);
  at + 1 == pages.end() ? make() : show(**(at + 1));
}

void frmSetup::back() {
  const std::vector<SetupPage*> pages = path();
  const auto at = std::ranges::find(pages, page_);
  if (at != pages.begin()) show(**(at - 1));
}

void frmSetup::make() {
  const auto store = [this] { storeSettings(pos_.configIni, answers_.till, answers_.shop); };
  dlgMaking making(
      keys(),
      [&](const GoOn& goOn) {
        return makeShop(answers_.shop, pos_.dataSource(), pos_.clock, store, goOn);
      },
      this);
  if (making.exec() == QDialog::Accepted) return accept();
  if (making.refusal().isEmpty()) return;
  messageBox(this, tr("店铺没有建立：%1").arg(making.refusal()), {}, BoxIcon::kExclamation);
}

void frmSetup::cancel() {
  if (askYesNo(this, tr("退出的话，什么也没有建立。要退出吗？"), {}, false)) reject();
}

bool frmSetup::handleKey(const QObject* watched, const QKeyEvent& event) {
  constexpr int kPageUp = 33, kPageDown = 34;
  const int key = virtualKey(event);
  if (key != kPageUp && key != kPageDown) return KeyDrivenDialog::handleKey(watched, event);
  if (!event.isAutoRepeat()) key == kPageDown ? next() : back();
  return true;
}
