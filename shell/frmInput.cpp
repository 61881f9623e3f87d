#include "shell/frmInput.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/KeyBoard.h"
#include "platform/VirtualKey.h"
#include "shell/Modal.h"
#include "shell/ShownText.h"

frmInput::frmInput(const KeyBoard& keys, QWidget* parent)
    : QDialog(parent),
      keys_(keys),
      lblTitle_(new QLabel),
      lblMsg_(new QLabel),
      txtPrice_(new QLineEdit) {
  setObjectName("frmInput");
  lblTitle_->setObjectName("lblTitle");
  lblMsg_->setObjectName("lblMsg");
  txtPrice_->setObjectName("txtPrice");
  for (QLabel* label : {lblTitle_, lblMsg_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  txtPrice_->setMinimumWidth(360);
  auto* cmdOk = new QPushButton(tr("确定"));
  cmdOk->setObjectName("cmdOk");
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 24);
  layout->setSpacing(16);
  layout->addWidget(lblTitle_);
  layout->addWidget(lblMsg_);
  layout->addWidget(txtPrice_);
  layout->addWidget(cmdOk, 0, Qt::AlignRight);
  // Before the field and the button see them: a mapped key may well be a letter or a figure.
  txtPrice_->installEventFilter(this);
  cmdOk->installEventFilter(this);
}

QString frmInput::init(const QString& title, const QString& message) {
  lblTitle_->setText(title.isEmpty() ? tr("没有定价") : shownText(title));
  lblMsg_->setText(message.isEmpty() ? tr("请输入价格(元)：") : shownText(message));
  setWindowTitle(lblTitle_->text());
  txtPrice_->clear();
  txtPrice_->setFocus();
  adjustSize();
  centreOnScreen(*this);
  return exec() == Accepted ? txtPrice_->text() : QString();
}

bool frmInput::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event))) return true;
  return QDialog::eventFilter(watched, event);
}

// Only mapped keys leave the dialog; its own handling would close it on the plain Enter and Esc.
void frmInput::keyPressEvent(QKeyEvent* event) {
  handleKey(*event);
}

bool frmInput::handleKey(const QKeyEvent& event) {
  const int key = keys_.meaning(virtualKey(event));
  if (key == 0) return false;
  if (key == keys_.mEnter) {
    accept();
  } else if (key == keys_.mEsc) {
    reject();
  } else {
    return false;
  }
  return true;
}
