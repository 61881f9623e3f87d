#include "goodsin/dlgGoodsPreview.h"

#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "base/Failure.h"
#include "goodsin/PreviewTable.h"
#include "platform/QtText.h"
#include "shell/Modal.h"
#include "shop/TimeLeft.h"

namespace {

constexpr int kWidth = 960, kHeight = 640;  // pixels
constexpr int kWhole = 1000;                // steps of the progress bar

}  // namespace

dlgGoodsPreview::dlgGoodsPreview(const KeyBoard& keys, const Connection& shop,
                                 std::filesystem::path file, GoodsMapping mapping, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      run_(shop.source(),
           {.number = [who = shop.user().number()] { return who; }, .clock = shop.user().clock}),
      file_(std::move(file)),
      mapping_(std::move(mapping)),
      lblState_(label("lblState", {})),
      barDone_(new QProgressBar(this)),
      tblPreview_(made("tblPreview", new PreviewTable(this))),
      cmdOk_(button("cmdOk", tr("导入(&S)"))),
      cmdCancel_(button("cmdCancel", tr("取消(&C)"))) {
  setObjectName("dlgGoodsPreview");
  setWindowTitle(tr("导入商品"));
  arrange();
  cmdOk_->setEnabled(false);
  connect(cmdOk_, &QPushButton::clicked, this, &dlgGoodsPreview::write);
  connect(cmdCancel_, &QPushButton::clicked, this, &dlgGoodsPreview::cancel);
  // The list has nothing to be chosen: Enter there is the button's.
  onEnter(tblPreview_, [this] { cmdOk_->click(); });
}

void dlgGoodsPreview::arrange() {
  lblState_->setWordWrap(true);
  lblState_->setTextFormat(Qt::PlainText);
  barDone_->setRange(0, kWhole);
  barDone_->setTextVisible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 16, 24, 16);
  layout->setSpacing(12);
  layout->addWidget(lblState_);
  layout->addWidget(barDone_);
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
  if (run_.isRunning()) event->ignore();
  cancel();
}

void dlgGoodsPreview::cancel() {
  if (!run_.isRunning()) return reject();
  run_.stop();
  lblState_->setText(tr("正在停止；已经开始写入的话，会写完。"));
}

std::optional<GoodsPreview> dlgGoodsPreview::go(Run work, const QString& doing) {
  using std::chrono::steady_clock;
  const TimeLeft left(steady_clock::now());
  cmdOk_->setEnabled(false);
  barDone_->show();
  barDone_->setValue(0);
  lblState_->setText(doing);
  return (run_.*work)(file_, mapping_, [&](double part) {
    barDone_->setValue(static_cast<int>(part * kWhole));
    lblState_->setText(
        tr("%1　已完成 %2").arg(doing, qtText(left.text(part, steady_clock::now()))));
  });
}

void dlgGoodsPreview::showEnd(const QString& text) {
  barDone_->hide();
  lblState_->setText(text);
}

void dlgGoodsPreview::read() {
  try {
    const auto preview = go(&GoodsRun::preview, tr("正在读取……"));
    if (!preview) return reject();
    tblPreview_->show(*preview);
    const bool mayWrite = preview->mayBeWritten() && !preview->changesNothing();
    cmdOk_->setEnabled(mayWrite);
    if (!preview->mayBeWritten()) {
      showEnd(tr("%1。请先改正不能导入的行，现在什么也不会写入。").arg(summaryOf(*preview)));
    } else if (preview->changesNothing()) {
      showEnd(tr("表里的 %1 种商品和店里的一样，没有要导入的。").arg(preview->unchangedCount));
    } else {
      showEnd(tr("%1。按回车键导入。").arg(summaryOf(*preview)));
    }
    mayWrite ? cmdOk_->setFocus() : tblPreview_->setFocus();
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    reject();
  }
}

void dlgGoodsPreview::write() {
  if (run_.isRunning()) return;
  try {
    written_ = go(&GoodsRun::import, tr("正在导入……"));
    if (!written_) return reject();
    if (written_->mayBeWritten()) return accept();
    tblPreview_->show(*written_);
    showEnd(tr("%1。什么也没有写入。").arg(summaryOf(*written_)));
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()), windowTitle(), BoxIcon::kExclamation);
    reject();
  }
}
