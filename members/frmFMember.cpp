#include "members/frmFMember.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "platform/QtText.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsMember.h"
#include "shell/DateField.h"
#include "shell/Modal.h"
#include "shell/dlgApproval.h"

namespace {

std::string textOf(const QLineEdit* edit) {
  return edit->text().toStdString();
}

double factor(Currency rate) {
  return static_cast<double>(rate.scaled()) / Currency::kScale;
}

}  // namespace

frmFMember::frmFMember(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kPlain, parent),
      pos_(pos),
      txtBh_(field("txtBh")),
      Label10_(label("Label10", tr("会员编号输完请按回车"))),
      txtName_(field("txtName")),
      txtOld_(field("txtOld")),
      OptBoy_(made("OptBoy", new QRadioButton(tr("男"), this))),
      OptGirl_(made("OptGirl", new QRadioButton(tr("女"), this))),
      txtAddress_(field("txtAddress")),
      txtPostcode_(field("txtPostcode")),
      txtPhone_(field("txtPhone")),
      txtOther_(field("txtOther")),
      zklb2_(made("zklb2", new QComboBox(this))),
      DTPicker1_(made("DTPicker1", new DateField(this))),
      card_(made("card", new QLineEdit("0", this))),
      password_(field("password")),
      lblStatus_(label("lblStatus", {})),
      cmdOk_(button("cmdOk", tr("确定"))),
      cmdCancel_(button("cmdCancel", tr("取消"))) {
  setObjectName("frmFMember");
  setWindowTitle(tr("会员资料"));
  setUpControls();
  arrange();
  chainControls();
  enableEntry(false);
  connect(cmdOk_, &QPushButton::clicked, this, &frmFMember::addMember);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmFMember::init() {
  exec();
}

void frmFMember::setUpControls() {
  zklb2_->setEditable(true);
  zklb2_->setInsertPolicy(QComboBox::NoInsert);
  DTPicker1_->setDate(pos_.clock().date);
  password_->setEchoMode(QLineEdit::Password);
  password_->setContextMenuPolicy(Qt::NoContextMenu);
  lblStatus_->setTextFormat(Qt::PlainText);
  lblStatus_->hide();
  OptBoy_->setChecked(true);
}

void frmFMember::arrange() {
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(32, 16, 32, 16);
  all->setSpacing(12);
  all->addWidget(label("Label1", tr("会 员 资 料")), 0, Qt::AlignHCenter);
  all->addLayout(fields());
  all->addWidget(lblStatus_);
  all->addLayout(buttonRow({cmdOk_, cmdCancel_}));
}

QLayout* frmFMember::fields() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  const auto place = [&](int row, int column, const char* name, const QString& caption,
                         QWidget* control, int span = 1) {
    grid->addWidget(label(name, caption), row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(control, row, column + 1, 1, span);
  };
  auto* sexes = new QWidget(this);
  auto* sexRow = new QHBoxLayout(sexes);
  sexRow->setContentsMargins(0, 0, 0, 0);
  sexRow->addWidget(OptBoy_);
  sexRow->addWidget(OptGirl_);
  sexRow->addStretch();
  place(0, 0, "lblBh", tr("会员编号："), txtBh_);
  grid->addWidget(Label10_, 0, 2, 1, 2);
  place(1, 0, "lblName", tr("姓名："), txtName_);
  place(1, 2, "lblOld", tr("年龄："), txtOld_);
  place(2, 0, "lblSex", tr("性别："), sexes);
  place(3, 0, "lblAddress", tr("联系地址："), txtAddress_, 3);
  place(4, 0, "lblPostcode", tr("积分："), txtPostcode_);
  place(4, 2, "lblPhone", tr("电话："), txtPhone_);
  place(5, 0, "lblOther", tr("备注："), txtOther_, 3);
  place(6, 0, "lblZklb", tr("会员卡类别"), zklb2_);
  place(6, 2, "lblBirthday", tr("会员生日:"), DTPicker1_);
  place(7, 0, "lblCard", tr("储值卡余额"), card_);
  place(7, 2, "lblPassword", tr("储值卡密码"), password_);
  grid->setColumnMinimumWidth(1, 260);
  grid->setColumnMinimumWidth(3, 260);
  return grid;
}

void frmFMember::chainControls() {
  onEnter(txtBh_, [this] { numberEntered(); });
  const std::pair<QWidget*, QWidget*> steps[] = {
      {txtName_, txtOld_},     {txtOld_, OptBoy_},          {OptBoy_, txtAddress_},
      {OptGirl_, txtAddress_}, {txtAddress_, txtPostcode_}, {txtPostcode_, txtPhone_},
      {txtPhone_, txtOther_},  {txtOther_, cmdOk_},         {zklb2_, DTPicker1_},
      {card_, password_},      {password_, cmdOk_}};
  for (const auto& [from, to] : steps) enterLeads(from, to);
  onEnter(DTPicker1_, [this] {
    if (DTPicker1_->check()) focusWhole(card_);
  });
}

void frmFMember::enableEntry(bool enabled) {
  for (QWidget* control : std::initializer_list<QWidget*>{
           txtName_, txtOld_, OptBoy_, OptGirl_, txtAddress_, txtPostcode_, txtPhone_, txtOther_,
           zklb2_, DTPicker1_, card_, password_, cmdOk_})
    control->setEnabled(enabled);
}

void frmFMember::numberEntered() {
  const std::string typed = textOf(txtBh_);
  txtBh_->setText(qtText(memberNumber(typed)));
  try {
    member_ = pos_.gMemberSvc.GetMember(typed);
  } catch (const Failure& error) {
    report(qtText(error.what()));
    return;
  }
  member_ ? showMember() : startMember();
}

void frmFMember::startMember() {
  enableEntry(true);
  member_ = pos_.gMemberSvc.NewMember(pos_.clock);
  for (QLineEdit* edit : {txtName_, txtAddress_, txtPhone_, txtOther_}) edit->clear();
  txtOld_->setText("25");
  txtPostcode_->setText("0");
  OptBoy_->setChecked(true);
  zklb2_->clear();
  zklb2_->addItems({tr("贵宾卡"), tr("银卡"), tr("金卡")});
  // No class until one is chosen: a member without one pays the full price.
  zklb2_->setCurrentIndex(-1);
  txtName_->setFocus();
  Label10_->show();
  lblStatus_->hide();
}

void frmFMember::showMember() {
  txtBh_->setText(qtText(member_->Bh()));
  txtName_->setText(qtText(member_->Name()));
  txtOld_->setText(QString::number(member_->Age()));
  // untranslated: as it is stored
  (member_->Sex() == "男" ? OptBoy_ : OptGirl_)->setChecked(true);
  txtAddress_->setText(qtText(member_->Address()));
  txtPostcode_->setText(QString::number(member_->Points()));
  txtPhone_->setText(qtText(member_->Phone()));
  txtOther_->setText(qtText(member_->Other()));
  zklb2_->setEditText(qtText(generalNumber(member_->Discount())));
  // Written for a new member, but not read back.
  for (QLineEdit* edit : {card_, password_, static_cast<QLineEdit*>(DTPicker1_)}) edit->clear();
  cmdCancel_->setFocus();
  enableEntry(false);
  txtBh_->setEnabled(false);
  Label10_->hide();
  lblStatus_->setText(tr("卡状态：%1\r\n累计消费：%2\r\n加入时间：%3")
                          .arg(member_->Enabled() ? tr("可用") : tr("禁用"),
                               qtText(twoDecimals(member_->TotalSpent())),
                               qtText(dateText(member_->JoinDate()))));
  lblStatus_->show();
  adjustSize();
  centreOnScreen(*this);
}

void frmFMember::addMember() {
  try {
    store();
  } catch (const Failure& error) {
    report(qtText(error.what()));
  }
}

void frmFMember::store() {
  txtBh_->setText(qtText(memberNumber(textOf(txtBh_))));
  // Nothing of an attempt that was refused before.
  member_ = pos_.gMemberSvc.NewMember(pos_.clock);
  member_->setAddress(textOf(txtAddress_));
  member_->setBh(textOf(txtBh_));
  if (trimmed(textOf(txtName_)).empty()) {
    messageBox(this, tr("请输入会员姓名"));
    txtName_->setFocus();
    return;
  }
  if (const QString wrong = readFigures(); !wrong.isEmpty()) {
    report(wrong);
    return;
  }
  if (!DTPicker1_->check()) return;
  const Permit leave = balanceAgreed();
  if (!leave) return focusWhole(card_);
  member_->setName(textOf(txtName_));
  member_->setOther(textOf(txtOther_));
  member_->setPhone(halfWidth(textOf(txtPhone_)));
  member_->setTotalSpent(Currency());
  member_->setBirthday(DTPicker1_->date());
  if (const auto rate = classRate()) member_->setDiscount(*rate);
  member_->setEnabled(true);
  member_->setPassword(textOf(password_));
  // untranslated: as it is stored
  member_->setSex(OptBoy_->isChecked() ? "男" : "女");
  if (!member_->Save()) {
    messageBox(this, qtText(member_->ErrText()), tr("出错"));
    return;
  }
  pos_.gMemberSvc.AddMember(*member_);
  messageBox(this, tr("会员增加成功!"));
  accept();
}

/// Age, points and opening balance into the member; an empty text, or which of them is no such
/// figure, which then has the focus.
QString frmFMember::readFigures() {
  const auto wrong = [](QLineEdit* edit, const QString& text) {
    focusWhole(edit);
    return text.arg(edit->text());
  };
  const auto age = parseWhole16(textOf(txtOld_));
  if (!age) return wrong(txtOld_, tr("年龄“%1”不是有效的整数！"));
  const auto points = parseWhole16(textOf(txtPostcode_));
  if (!points) return wrong(txtPostcode_, tr("积分“%1”不是有效的整数！"));
  const auto balance = Currency::parse(textOf(card_));
  if (!balance) return wrong(card_, tr("储值卡余额“%1”不是有效的金额！"));
  member_->setAge(*age);
  member_->setPoints(*points);
  member_->setBalance(*balance);
  return {};
}

/// Money on a new card is as good as a top-up.
Permit frmFMember::balanceAgreed() {
  const auto balance = Currency::parse(textOf(card_));
  if (!balance || balance->isZero()) return std::make_shared<const Grant>();
  return askLeave(pos_, this, {Right::kTopUp});
}

/// Nothing for a text that is none of the classes.
std::optional<double> frmFMember::classRate() const {
  const QString chosen = zklb2_->currentText().trimmed();
  if (chosen == tr("贵宾卡")) return factor(pos_.gSysParam.VipRate());
  if (chosen == tr("银卡")) return factor(pos_.gSysParam.SilverRate());
  if (chosen == tr("金卡")) return factor(pos_.gSysParam.GoldRate());
  return std::nullopt;
}

void frmFMember::report(const QString& text) {
  messageBox(this, text, tr("出错"), BoxIcon::kInformation);
}
