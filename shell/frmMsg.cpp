#include "shell/frmMsg.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/Modal.h"
#include "shell/ShownText.h"

namespace {

constexpr int kTextWidth = 560;

QFrame* framed(QLabel* label, const QString& name, QWidget* parent) {
  auto* frame = new QFrame(parent);
  frame->setObjectName(name);
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(28, 20, 28, 20);
  layout->addWidget(label);
  return frame;
}

}  // namespace

frmMsg::frmMsg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), Label1_(new QLabel) {
  setObjectName("frmMsg");
  auto* Label2 = new QLabel(tr("信息提示"));
  Label2->setObjectName("Label2");
  Label1_->setObjectName("Label1");
  Label1_->setTextFormat(Qt::PlainText);
  Label1_->setWordWrap(true);
  Label1_->setFixedWidth(kTextWidth);
  Label1_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->setSpacing(0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(framed(Label2, "Frame1", this));
  layout->addWidget(framed(Label1_, "Frame2", this));
}

void frmMsg::Message(const QString& msg) {
  Label1_->setText(shownText(msg));
  layout()->activate();
  adjustSize();
  centreOnScreen(*this);
  exec();
}

// A key held down is one press: the Enter that brought the message up does not take it away again.
void frmMsg::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) pressed(*event);
}

void frmMsg::pressed(const QKeyEvent&) {
  accept();
}

void frmMsg::mousePressEvent(QMouseEvent*) {
  accept();
}
