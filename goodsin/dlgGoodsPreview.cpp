#include "goodsin/dlgGoodsPreview.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "base/Failure.h"
#include "goodsin/PreviewTable.h"
#include "goodsin/WorkProgress.h"
#include "platform/QtText.h"
#include "shell/Modal.h"

namespace {

constexpr int kWidth = 960, kHeight = 640;  // pixels

}  // namespace

dlgGoodsPreview::dlgGoodsPreview(const KeyBoard& keys, GoodsTarget target, GoodsSheet sheet,
                                 QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      target_(std::move(target)),
      sheet_(std::move(sheet)),
      progress_(new WorkProgress(this)),
      tblPreview_(made("tblPreview", new PreviewTable(this))),
      cmdOk_(button("cmdOk", target_.import ? tr("导入(&S)") : tr("用这张表(&S)"))),
      cmdCancel_(button("cmdCancel", tr("取消(&C)"))) {
  setObjectName("dlgGoodsPreview");
  setWindowTitle(tr("导入商品"));
  arrange();
  cmdOk_->setEnabled(false);
  connect(cmdOk_, &QPushButton::clicked, this, &dlgGoodsPreview::take);
  connect(cmdCancel_, &QPushButton::clicked, this, &dlgGoodsPreview::cancel);
  // The list has nothing to be chosen: Enter there is the button's.
  onEnter(tblPreview_, [this] { cmdOk_->click(); });
}

void dlgGoodsPreview::arrange() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 16, 24, 16);
  layout->setSpacing(12);
  layout->addWidget(progress_);
  layout->addWidget(tblPreview_, 1);
  layout->addLayout(buttonRow({cmdOk_, cmdCancel_}));
  walkThrough({tblPreview_, cmdOk_, cmdCancel_});
  resize(kWidth, kHeight);
}

void dlgGoodsPreview::showEvent(QShowEvent* event) {
  KeyDrivenDialog::showEvent(event);
  QTimer::singleShot(0, this, &dlgGoodsPreview::read);
}

void dlgGoodsPreview::closeEvent(QCloseEvent* event) {
  if (work_.isRunning()) event->ignore();
  cancel();
}

void dlgGoodsPreview::cancel() {
  if (!work_.isRunning()) return reject();
  work_.stop();
  progress_->say(tr("正在停止；已经开始写入的话，会写完。"));
}

std::optional<GoodsPreview> dlgGoodsPreview::go(const GoodsTarget::Work& work,
                                                const QString& doing) {
  cmdOk_->setEnabled(false);
  progress_->begin(doing);
  std::optional<GoodsPreview> result;
  work_.run([&](const GoOn& goOn) { result = work(sheet_, goOn); },
            [this](double part) { progress_->show(part); });
  return result;
}

void dlgGoodsPreview::read() {
  try {
    taken_ = go(target_.preview, tr("正在读取……"));
    if (!taken_) return reject();
    showPreview(*taken_);
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    reject();
  }
}

void dlgGoodsPreview::showPreview(const GoodsPreview& preview) {
  tblPreview_->show(preview);
  const bool mayTake = preview.mayBeWritten() && !preview.changesNothing();
  cmdOk_->setEnabled(mayTake);
  if (!preview.mayBeWritten()) {
    progress_->end(tr("%1。请先改正不能导入的行，现在什么也不会写入。").arg(summaryOf(preview)));
  } else if (preview.changesNothing()) {
    progress_->end(tr("表里的 %1 种商品和店里的一样，没有要导入的。").arg(preview.unchangedCount));
  } else if (target_.import) {
    progress_->end(tr("%1。按回车键导入。").arg(summaryOf(preview)));
  } else {
    progress_->end(tr("%1。按回车键选定，开店时导入。").arg(summaryOf(preview)));
  }
  mayTake ? cmdOk_->setFocus() : tblPreview_->setFocus();
}

void dlgGoodsPreview::take() {
  if (work_.isRunning()) return;
  if (!target_.import) return accept();
  try {
    taken_ = go(target_.import, tr("正在导入……"));
    if (!taken_) return reject();
    if (taken_->mayBeWritten()) return accept();
    tblPreview_->show(*taken_);
    progress_->end(tr("%1。什么也没有写入。").arg(summaryOf(*taken_)));
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    reject();
  }
}
