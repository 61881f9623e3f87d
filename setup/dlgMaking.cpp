#include "setup/dlgMaking.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "base/Failure.h"
#include "goodsin/WorkProgress.h"
#include "platform/QtText.h"

dlgMaking::dlgMaking(const KeyBoard& keys, Make make, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      make_(std::move(make)),
      progress_(new WorkProgress(this)) {
  setObjectName("dlgMaking");
  setWindowTitle(tr("开店"));
  QPushButton* cmdCancel = button("cmdCancel", tr("停止(&C)"));
  connect(cmdCancel, &QPushButton::clicked, this, &dlgMaking::cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 16, 24, 16);
  layout->setSpacing(12);
  layout->addWidget(progress_);
  layout->addLayout(buttonRow({cmdCancel}));
  constexpr int kWidth = 640;  // pixels
  setMinimumWidth(kWidth);
}

void dlgMaking::showEvent(QShowEvent* event) {
  KeyDrivenDialog::showEvent(event);
  progress_->begin(tr("正在建立店铺……"));
  QTimer::singleShot(0, this, &dlgMaking::work);
}

void dlgMaking::closeEvent(QCloseEvent* event) {
  event->ignore();
  cancel();
}

void dlgMaking::cancel() {
  work_.stop();
  progress_->say(tr("正在停止，什么也不会留下……"));
}

void dlgMaking::work() {
  bool isMade = false;
  try {
    work_.run([&](const GoOn& goOn) { isMade = make_(goOn); },
              [this](double part) { progress_->show(part); });
  } catch (const Failure& failure) {
    refusal_ = qtText(failure.what());
  }
  done(isMade ? Accepted : Rejected);
}
