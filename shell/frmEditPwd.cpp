#include "shell/frmEditPwd.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "platform/VirtualKey.h"
#include "saleslib/ClsLogin.h"
#include "shell/Modal.h"
#include "shell/frmMsg.h"

namespace {

QLabel* caption(const QString& name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  return label;
}

QPushButton* pushButton(const QString& name, const QString& text) {
  auto* push = new QPushButton(text);
  push->setObjectName(name);
  return push;
}

void hidePassword(QLineEdit* edit) {
  edit->setEchoMode(QLineEdit::Password);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
}

void focusWhole(QLineEdit* edit) {
  edit->setFocus();
  edit->selectAll();
}

}  // namespace

frmEditPwd::frmEditPwd(posMod& pos, QWidget* parent)
    : QDialog(parent),
      pos_(pos),
      txtNumber_(field("txtNumber")),
      txtPassword_(field("txtPassword")),
      txtNewPwd_(field("txtNewPwd")) {
  setObjectName("frmEditPwd");
  setWindowTitle(tr("修改密码"));
  hidePassword(txtPassword_);
  hidePassword(txtNewPwd_);

  auto* Frame1 = new QFrame;
  Frame1->setObjectName("Frame1");
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(24, 24, 24, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(16);
  grid->addWidget(caption("Label2", tr("用户编号：")), 0, 0, Qt::AlignRight);
  grid->addWidget(txtNumber_, 0, 1);
  grid->addWidget(caption("Label3", tr("旧密码：")), 1, 0, Qt::AlignRight);
  grid->addWidget(txtPassword_, 1, 1);
  grid->addWidget(caption("Label4", tr("新密码：")), 2, 0, Qt::AlignRight);
  grid->addWidget(txtNewPwd_, 2, 1);

  QPushButton* cmdOk = pushButton("cmdOk", tr("确定(&Y)"));
  QPushButton* cmdCancel = pushButton("cmdCancel", tr("取消"));
  connect(cmdOk, &QPushButton::clicked, this, &frmEditPwd::change);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  cmdOk->installEventFilter(this);
  cmdCancel->installEventFilter(this);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(16);
  buttons->addStretch();
  buttons->addWidget(cmdOk);
  buttons->addWidget(cmdCancel);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 24);
  layout->setSpacing(20);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(caption("Label1", tr("密 码 修 改")));
  layout->addWidget(Frame1);
  layout->addLayout(buttons);
}

// The filter sees a key before the control does: a mapped key may well be a letter or a figure.
QLineEdit* frmEditPwd::field(const QString& name) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  edit->setMinimumWidth(280);
  edit->installEventFilter(this);
  return edit;
}

void frmEditPwd::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  centreOnScreen(*this);
  focusWhole(txtNumber_);
}

bool frmEditPwd::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event))) return true;
  return QDialog::eventFilter(watched, event);
}

// Only mapped keys act; the dialog's own handling would close it on the plain Enter and Esc.
void frmEditPwd::keyPressEvent(QKeyEvent* event) {
  handleKey(*event);
}

bool frmEditPwd::handleKey(const QKeyEvent& event) {
  const int pressed = virtualKey(event);
  const int key = pressed == vk::kEnter ? pos_.gKeyBoard.mEnter : pressed;
  if (key == 0) return false;
  if (key == pos_.gKeyBoard.mEsc) {
    reject();
    return true;
  }
  // An Enter held down is one press: it does not run through the fields by itself.
  return key == pos_.gKeyBoard.mEnter && (event.isAutoRepeat() || enter());
}

bool frmEditPwd::enter() {
  QWidget* focused = focusWidget();
  if (focused == txtNumber_) {
    focusWhole(txtPassword_);
  } else if (focused == txtPassword_) {
    focusWhole(txtNewPwd_);
  } else if (focused == txtNewPwd_) {
    change();
  } else if (auto* button = qobject_cast<QPushButton*>(focused)) {
    button->click();
  } else {
    return false;
  }
  return true;
}

void frmEditPwd::change() {
  ClsLogin login;
  login.Conn(*pos_.gConn);
  if (!login.Check(txtNumber_->text().toStdString(), txtPassword_->text().toStdString())) {
    frmMsg(this).Message(QString::fromStdString(login.ErrText()));
    return;
  }
  pos_.gOperator = login.Operator();
  pos_.gOperator->setPassword(txtNewPwd_->text().toStdString());
  pos_.gOperator->Save();
  // Whoever was at the till logs in again: the next protected screen asks who is there.
  pos_.gOperator = nullptr;
  accept();
}
