#include "shell/frmEditPwd.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "shell/FramedFields.h"
#include "shell/IdentityTexts.h"
#include "shell/frmMsg.h"

frmEditPwd::frmEditPwd(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      txtNumber_(field("txtNumber")),
      txtPassword_(field("txtPassword")),
      txtNewPwd_(field("txtNewPwd")) {
  setObjectName("frmEditPwd");
  setWindowTitle(tr("修改密码"));
  hidePassword(txtPassword_);
  hidePassword(txtNewPwd_);
  QPushButton* cmdOk = button("cmdOk", tr("确定(&Y)"));
  QPushButton* cmdCancel = button("cmdCancel", tr("取消"));
  layOutFramedFields(*this, label("Label1", tr("密 码 修 改")),
                     {{label("Label2", tr("用户编号：")), txtNumber_},
                      {label("Label3", tr("旧密码：")), txtPassword_},
                      {label("Label4", tr("新密码：")), txtNewPwd_}},
                     buttonRow({cmdOk, cmdCancel}));
  connect(cmdOk, &QPushButton::clicked, this, &frmEditPwd::change);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  enterLeads(txtNumber_, txtPassword_);
  enterLeads(txtPassword_, txtNewPwd_);
  onEnter(txtNewPwd_, [this] { change(); });
}

void frmEditPwd::change() {
  QString refusal;
  try {
    refusal = store();
  } catch (const Failure& failure) {
    refusal = qtText(failure.what());
  }
  if (!refusal.isEmpty()) {
    frmMsg(this).Message(refusal);
    return;
  }
  // Whoever was at the till logs in again: the next protected screen asks who is there.
  pos_.gOperator = nullptr;
  accept();
}

/// An empty text, or why the old password does not do, which is then to be typed anew.
QString frmEditPwd::store() {
  const Identification::Answer answer = pos_.identification().byPassword(
      txtNumber_->text().toStdString(), txtPassword_->text().toStdString());
  if (!answer.person) {
    focusWhole(txtPassword_);
    return refusalText(answer);
  }
  answer.person->setPassword(txtNewPwd_->text().toStdString());
  answer.person->Save();
  return {};
}
