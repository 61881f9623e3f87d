#include "shell/frmLogin.h"

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

namespace {

QLineEdit* field(const QString& name) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  edit->setMinimumWidth(280);
  return edit;
}

QLabel* caption(const QString& name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  return label;
}

QPushButton* button(const QString& name, const QString& text) {
  auto* push = new QPushButton(text);
  push->setObjectName(name);
  return push;
}

}  // namespace

frmLogin::frmLogin(posMod& pos, QWidget* parent)
    : QDialog(parent),
      pos_(pos),
      txtNumber_(field("txtNumber")),
      txtPassword_(field("txtPassword")) {
  setObjectName("frmLogin");
  setWindowTitle(tr("登录"));
  txtPassword_->setEchoMode(QLineEdit::Password);
  txtPassword_->setContextMenuPolicy(Qt::NoContextMenu);

  auto* Frame1 = new QFrame;
  Frame1->setObjectName("Frame1");
  auto* grid = new QGridLayout(Frame1);
  grid->setContentsMargins(24, 24, 24, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(16);
  grid->addWidget(caption("Label2", tr("工号：")), 0, 0, Qt::AlignRight);
  grid->addWidget(txtNumber_, 0, 1);
  grid->addWidget(caption("Label3", tr("密码：")), 1, 0, Qt::AlignRight);
  grid->addWidget(txtPassword_, 1, 1);

  QPushButton* cmdOk = button("cmdOk", tr("确定"));
  QPushButton* cmdCancel = button("cmdCancel", tr("取消"));
  connect(cmdOk, &QPushButton::clicked, this, &frmLogin::check);
  connect(cmdCancel, &QPushButton::clicked, this, &frmLogin::cancel);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(16);
  buttons->addStretch();
  buttons->addWidget(cmdOk);
  buttons->addWidget(cmdCancel);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 24);
  layout->setSpacing(20);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(caption("Label1", tr("收银员登录")));
  layout->addWidget(Frame1);
  layout->addLayout(buttons);

  // Before the controls see them: a mapped key may well be a letter or a figure.
  for (QWidget* control : {static_cast<QWidget*>(txtNumber_), static_cast<QWidget*>(txtPassword_),
                           static_cast<QWidget*>(cmdOk), static_cast<QWidget*>(cmdCancel)})
    control->installEventFilter(this);
}

int frmLogin::goLogin() {
  txtNumber_->clear();
  txtPassword_->clear();
  txtNumber_->setFocus();
  layout()->activate();
  centreOnScreen(*this);
  exec();
  // Nothing of a password stays behind in a window that is not shown.
  txtPassword_->clear();
  return result_;
}

bool frmLogin::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event))) return true;
  return QDialog::eventFilter(watched, event);
}

// Only mapped keys act; the dialog's own handling would close it on the plain Enter and Esc.
void frmLogin::keyPressEvent(QKeyEvent* event) {
  handleKey(*event);
}

bool frmLogin::handleKey(const QKeyEvent& event) {
  const int key = virtualKey(event);
  if (key == 0) return false;
  if (key == pos_.gKeyBoard.mEsc) {
    cancel();
  } else if (key == pos_.gKeyBoard.mEnter && focusWidget() == txtNumber_) {
    txtPassword_->setFocus();
    txtPassword_->selectAll();
  } else if (key == pos_.gKeyBoard.mEnter && focusWidget() == txtPassword_) {
    check();
  } else {
    return false;
  }
  return true;
}

void frmLogin::check() {
  ClsLogin login;
  login.Conn(*pos_.gConn);
  if (!login.Check(txtNumber_->text().toStdString(), txtPassword_->text().toStdString())) {
    messageBox(this, QString::fromStdString(login.ErrText()), {}, BoxIcon::kInformation);
    result_ = kFailed;
    return;
  }
  result_ = kAccepted;
  const std::shared_ptr<ClsOperator> checked = login.Operator();
  if (!checked->Rights().HasRight(kRightSell)) {
    messageBox(this, tr("没有权限！"), {}, BoxIcon::kQuestion);
    return;
  }
  pos_.gOperator = checked;
  accept();
}

void frmLogin::cancel() {
  result_ = kCancelled;
  reject();
}
