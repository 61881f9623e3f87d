#include "shell/frmLogin.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "saleslib/Journal.h"
#include "shell/FramedFields.h"
#include "shell/IdentityTexts.h"
#include "shell/Modal.h"

frmLogin::frmLogin(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      txtNumber_(field("txtNumber")),
      txtPassword_(field("txtPassword")) {
  setObjectName("frmLogin");
  setWindowTitle(tr("登录"));
  hidePassword(txtPassword_);
  QPushButton* cmdOk = button("cmdOk", tr("确定"));
  QPushButton* cmdCancel = button("cmdCancel", tr("取消"));
  layOutFramedFields(*this, label("Label1", tr("收银员登录")),
                     {{label("Label2", tr("用户编号：")), txtNumber_},
                      {label("Label3", tr("密码：")), txtPassword_}},
                     buttonRow({cmdOk, cmdCancel}));
  connect(cmdOk, &QPushButton::clicked, this, &frmLogin::check);
  connect(cmdCancel, &QPushButton::clicked, this, &frmLogin::cancel);
  enterLeads(txtNumber_, txtPassword_);
  onEnter(txtPassword_, [this] { check(); });
}

int frmLogin::goLogin() {
  txtNumber_->clear();
  txtPassword_->clear();
  exec();
  // Nothing of a password stays behind in a window that is not shown.
  txtPassword_->clear();
  return result_;
}

void frmLogin::check() {
  const Identification::Answer answer = pos_.identification().byPassword(
      txtNumber_->text().toStdString(), txtPassword_->text().toStdString());
  if (!answer.person) {
    messageBox(this, refusalText(answer), {}, BoxIcon::kInformation);
    result_ = kFailed;
    focusWhole(txtPassword_);  // behind dots nobody sees that typing would only add to it
    return;
  }
  result_ = kAccepted;
  if (!answer.person->Rights().HasRight(kRightSell)) {
    messageBox(this, tr("没有权限！"), {}, BoxIcon::kQuestion);
    focusWhole(txtNumber_);
    return;
  }
  pos_.gOperator = answer.person;
  try {
    pos_.journal().note(EntryKind::kLoggedIn, std::to_string(answer.person->Id()));
  } catch (const Failure& failure) {
    pos_.gOperator.reset();
    return messageBox(this, qtText(failure.what()));
  }
  accept();
}

void frmLogin::cancel() {
  result_ = kCancelled;
  reject();
}
