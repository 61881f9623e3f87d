#include "goodsin/WorkProgress.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "platform/QtText.h"

using std::chrono::steady_clock;

namespace {

constexpr int kWhole = 1000;  // steps of the progress bar

}  // namespace

WorkProgress::WorkProgress(QWidget* parent)
    : QWidget(parent),
      lblState_(new QLabel),
      barDone_(new QProgressBar),
      left_(steady_clock::now()) {
  lblState_->setObjectName("lblState");
  lblState_->setWordWrap(true);
  lblState_->setTextFormat(Qt::PlainText);
  barDone_->setRange(0, kWhole);
  barDone_->setTextVisible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(12);
  layout->addWidget(lblState_);
  layout->addWidget(barDone_);
}

void WorkProgress::begin(const QString& doing) {
  left_ = TimeLeft(steady_clock::now());
  barDone_->setValue(0);
  barDone_->show();
  say(doing);
  doing_ = doing;
}

void WorkProgress::show(double part) {
  barDone_->setValue(static_cast<int>(part * kWhole));
  if (doing_.isEmpty()) return;
  lblState_->setText(
      tr("%1　已完成 %2").arg(doing_, qtText(left_.text(part, steady_clock::now()))));
}

void WorkProgress::say(const QString& text) {
  doing_.clear();
  lblState_->setText(text);
}

void WorkProgress::end(const QString& result) {
  barDone_->hide();
  say(result);
}
