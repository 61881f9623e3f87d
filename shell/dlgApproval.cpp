#include "shell/dlgApproval.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <utility>

#include "app/RightTexts.h"
#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/KeyName.h"
#include "platform/QtText.h"
#include "saleslib/Identification.h"
#include "saleslib/StaffCard.h"
#include "shell/FramedFields.h"
#include "shell/IdentityTexts.h"
#include "shell/Noted.h"
#include "shell/ShownText.h"

namespace {

/// What an approval touches, as rights are written: "drawer", "discount:15".
std::string deedKey(const Deed& deed) {
  const bool isMeasured = rightKind(deed.right).limit != RightKind::Limit::kNone;
  return rightText({deed.right, isMeasured ? std::optional(deed.size) : std::nullopt});
}

}  // namespace

dlgApproval::dlgApproval(posMod& pos, const Deed& deed, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      deed_(deed),
      txtNumber_(field("txtNumber")),
      txtPassword_(field("txtPassword")),
      lblSaid_(label("lblSaid", {})) {
  setObjectName("dlgApproval");
  setWindowTitle(tr("授权"));
  hidePassword(txtPassword_);
  lblSaid_->setTextFormat(Qt::PlainText);
  lblSaid_->setWordWrap(true);
  lblSaid_->setText(shownText(question()));
  QPushButton* cmdOk = button("cmdOk", tr("授权"));
  QPushButton* cmdCancel = button("cmdCancel", tr("放弃"));
  layOutFramedFields(*this, label("Label1", deedText(deed)),
                     {{label("Label2", tr("用户编号或刷卡：")), txtNumber_},
                      {label("Label3", tr("密码：")), txtPassword_}},
                     buttonRow({cmdOk, cmdCancel}));
  qobject_cast<QBoxLayout*>(layout())->insertWidget(1, lblSaid_);
  connect(cmdOk, &QPushButton::clicked, this, &dlgApproval::check);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  onEnter(txtNumber_, [this] { numberEntered(); });
  onEnter(txtPassword_, [this] { check(); });
}

QString dlgApproval::question() const {
  const QString name = qtText(pos_.gOperator->Name());
  if (const auto limit = pos_.gOperator->Rights().Limit(deed_.right)) {
    return tr("%1最多只能到 %2。请有权限的人授权，%3 放弃。")
        .arg(name, limitText(rightKind(deed_.right), *limit), shortKeyText(keys().mEsc));
  }
  return tr("%1没有这个权限。请有权限的人授权，%2 放弃。").arg(name, shortKeyText(keys().mEsc));
}

std::shared_ptr<const ClsOperator> dlgApproval::ask() {
  exec();
  return std::move(approver_);
}

void dlgApproval::numberEntered() {
  if (isSwipe(txtNumber_->text().toStdString())) return check();
  focusWhole(txtPassword_);
}

void dlgApproval::check() {
  const std::string number = txtNumber_->text().toStdString();
  Identification::Answer answer;
  try {
    answer = isSwipe(number)
                 ? pos_.identification().bySwipe(number)
                 : pos_.identification().byPassword(number, txtPassword_->text().toStdString());
  } catch (const Failure& failure) {
    return say(qtText(failure.what()));
  }
  txtPassword_->clear();
  // What a card reader types is no number that anybody could correct.
  if (isSwipe(number)) txtNumber_->clear();
  if (!answer.person) {
    say(refusalText(answer));
    return focusWhole(isSwipe(number) ? txtNumber_ : txtPassword_);
  }
  if (!answer.person->Rights().Allow(deed_)) {
    say(tr("%1也不能授权：%2。").arg(qtText(answer.person->Name()), deedText(deed_)));
    return focusWhole(txtNumber_);
  }
  approver_ = std::move(answer.person);
  accept();
}

void dlgApproval::say(const QString& text) {
  lblSaid_->setText(shownText(text));
  lblSaid_->setProperty("refusal", true);
  style()->unpolish(lblSaid_);
  style()->polish(lblSaid_);
}

Permit askLeave(posMod& pos, QWidget* parent, const Deed& deed) {
  ensure(pos.gOperator != nullptr, "who asks for leave is logged in");
  bool isAsked = false;
  Permit permit = pos.permission.may(*pos.gOperator, deed, [&](const Deed& wanted) {
    isAsked = true;
    return dlgApproval(pos, wanted, parent).ask();
  });
  if (!isAsked) return permit;
  // The permit's approver is the entry's.
  const EntryKind kind = permit ? EntryKind::kApprovalGiven : EntryKind::kApprovalRefused;
  return noted(pos, parent, kind, qtText(deedKey(deed))) ? permit : nullptr;
}
