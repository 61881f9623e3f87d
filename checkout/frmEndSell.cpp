#include "checkout/frmEndSell.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/KeyBoard.h"
#include "app/TenderTexts.h"
#include "checkout/Settlement.h"
#include "platform/KeyName.h"
#include "platform/Twips.h"
#include "platform/VirtualKey.h"

namespace {

/// Of the captions on the left, alike in both frames so that the fields stand in one line.
constexpr int kCaptionWidth = pixels(1500);
constexpr int kFieldWidth = pixels(3300);

QString caption(Tender tender) {
  return tenderName(tenderKind(tender));
}

/// Shows what became of a text; a text that was replaced is selected, so that typing replaces it.
void showAccepted(QLineEdit& field, const QString& accepted) {
  if (field.text() == accepted) return;
  field.setText(accepted);
  field.selectAll();
}

}  // namespace

frmEndSell::frmEndSell(const KeyBoard& keys, QWidget* parent)
    : KeyDrivenDialog(keys, EnterKey::kMapped, parent),
      title_(label("title", {})),
      count_(label("PCount", {})),
      money_(label("Money", tr("0000.00"))),
      change_(label("lbl1", tr("0.00"))),
      hint_(label("lblHint", {})),
      cash_(field("txtInMoney")),
      favorable_(field("favorable")),
      salesman_(field("salesman")),
      bankCard_(field("yhk")),
      phone_(field("sm")),
      slip_(field("smbh")),
      cardNumber_(field("czk")),
      password_(field("mima")) {
  setObjectName("frmEndSell");
  setWindowTitle(tr("收银结算"));
  cash_->setToolTip(tr("为0表示实收金额与应收金额相同"));
  password_->setEchoMode(QLineEdit::Password);
  password_->setContextMenuPolicy(Qt::NoContextMenu);

  auto* all = new QVBoxLayout(this);
  all->addWidget(label("Label4", tr("收银结算")), 0, Qt::AlignHCenter);
  all->addWidget(title_);
  all->addWidget(count_);
  all->addWidget(amountFrame());
  all->addWidget(otherFrame());
  all->addWidget(hint_, 0, Qt::AlignHCenter);
  all->setSizeConstraint(QLayout::SetFixedSize);
  connectFields();
  setUpEnter();
}

QFrame* frmEndSell::amountFrame() {
  auto* frame = new QFrame(this);
  frame->setObjectName("Frame1");
  auto* grid = new QGridLayout(frame);
  money_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cash_->setAlignment(Qt::AlignRight);
  change_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(label("Label6", tr("应收")), 0, 0);
  grid->addWidget(money_, 0, 1);
  grid->addWidget(label("Label7", tr("元")), 0, 2);
  grid->addWidget(label("Label1", caption(Tender::kCash)), 1, 0);
  grid->addWidget(cash_, 1, 1);
  grid->addWidget(label("Label3", tr("找零")), 2, 0);
  grid->addWidget(change_, 2, 1);
  grid->setColumnMinimumWidth(0, kCaptionWidth);
  grid->setColumnStretch(1, 1);
  return frame;
}

QFrame* frmEndSell::otherFrame() {
  auto* frame = new QFrame(this);
  frame->setObjectName("Frame2");
  auto* grid = new QGridLayout(frame);
  grid->addWidget(label("Label8", caption(Tender::kFavorable)), 0, 0);
  grid->addWidget(favorable_, 0, 1);
  grid->addWidget(label("Label9", tr("业务员")), 0, 2);
  grid->addWidget(salesman_, 0, 3);
  grid->addWidget(label("Label2", caption(Tender::kBankCard)), 1, 0);
  grid->addWidget(bankCard_, 1, 1);
  grid->addWidget(label("Label10", caption(Tender::kPhone)), 2, 0);
  grid->addWidget(phone_, 2, 1);
  grid->addWidget(label("Label11", tenderSlipName(tenderKind(Tender::kPhone))), 2, 2);
  grid->addWidget(slip_, 2, 3);
  grid->addWidget(label("Label5", tr("卡号")), 3, 0);
  grid->addWidget(cardNumber_, 3, 1);
  grid->addWidget(label("passwordmc", tr("密码")), 3, 2);
  grid->addWidget(password_, 3, 3);
  for (const int caption : {0, 2}) grid->setColumnMinimumWidth(caption, kCaptionWidth);
  for (const int field : {1, 3}) grid->setColumnMinimumWidth(field, kFieldWidth);
  return frame;
}

void frmEndSell::connectFields() {
  connect(cash_, &QLineEdit::textChanged, this, &frmEndSell::showChange);
  for (const auto& [tender, field] : figures()) {
    connect(field, &QLineEdit::textChanged, this,
            [this, tender = tender, field = field](const QString& text) {
              showAccepted(*field, settlement_->figureChanged(tender, text));
              showChange();
            });
  }
  connect(salesman_, &QLineEdit::textChanged, this, [this](const QString& text) {
    showAccepted(*salesman_, settlement_->salesmanChanged(text));
  });
  connect(slip_, &QLineEdit::editingFinished, this, [this] {
    if (settlement_) slip_->setText(settlement_->slipChanged(slip_->text()));
  });
}

void frmEndSell::setUpEnter() {
  onEnter(cash_, [this] { confirmCash(); });
  for (QLineEdit* field : {favorable_, salesman_, bankCard_, phone_, slip_})
    enterLeads(field, cash_);
  onEnter(cardNumber_, [this] { checkCard(); });
  onEnter(password_, [this] { payByCard(); });
}

std::vector<std::pair<Tender, QLineEdit*>> frmEndSell::figures() const {
  return {
      {Tender::kFavorable, favorable_}, {Tender::kBankCard, bankCard_}, {Tender::kPhone, phone_}};
}

bool frmEndSell::init(Settlement& settlement) {
  settlement_ = &settlement;
  showSettlement();
  settlement.begin();
  exec();
  password_->clear();
  settlement_ = nullptr;
  return settlement.settled();
}

void frmEndSell::showSettlement() {
  title_->setText(settlement_->title());
  count_->setText(settlement_->countText());
  money_->setText(settlement_->dueText());
  for (const auto& [tender, field] : figures()) field->setText(settlement_->figureText(tender));
  salesman_->setText(settlement_->salesmanText());
  slip_->setText(settlement_->slipText());
  cash_->setText(settlement_->cashText());
  cardNumber_->clear();
  password_->clear();
  showTenders();
  showChange();
}

void frmEndSell::showTenders() {
  const bool phone = settlement_->takes(Tender::kPhone);
  for (const char* name : {"Label10", "sm", "Label11", "smbh"}) {
    findChild<QWidget*>(name)->setVisible(phone);
  }
  const QString hint =
      phone ? tr("现金栏：%1 收款，%2 返回单据；Tab 转到优惠、业务员、银行卡、扫码、储值卡")
            : tr("现金栏：%1 收款，%2 返回单据；Tab 转到优惠、业务员、银行卡、储值卡");
  hint_->setText(hint.arg(keyName(keys().mEnter), keyName(keys().mEsc)));
}

void frmEndSell::showChange() {
  const QString change = settlement_->change(cash_->text());
  if (!change.isNull()) change_->setText(change);
}

// The card fields know the plain Enter key alone: a mapped one may be a character of theirs. Esc
// leaves the dialog from the cash field only.
bool frmEndSell::handleKey(const QObject* watched, const QKeyEvent& event) {
  const int code = virtualKey(event);
  const int key = keys().meaning(code);
  const bool onCard = watched == cardNumber_ || watched == password_;
  if (onCard ? code != vk::kEnter : key == keys().mEsc && watched != cash_) return false;
  if (watched == cash_ && key != 0 && key == keys().mF1) {
    // The key that opened the dialog may still be held down; that confirms nothing.
    if (!event.isAutoRepeat()) confirmCash();
    return true;
  }
  return KeyDrivenDialog::handleKey(watched, event);
}

void frmEndSell::confirmCash() {
  settlement_->confirmCash(cash_->text());
  if (settlement_->settled()) {
    close();
  } else {
    cash_->selectAll();
  }
}

void frmEndSell::checkCard() {
  const QString card = settlement_->checkCard(cardNumber_->text());
  if (card.isNull()) return focusWhole(cardNumber_);
  cardNumber_->setText(card);
  password_->setFocus();
}

void frmEndSell::payByCard() {
  const auto outcome = settlement_->payByCard(cardNumber_->text(), password_->text());
  if (!outcome) return;
  switch (*outcome) {
    case CardOutcome::kDone:
      cash_->setText("0");
      change_->setText("0.0");
      settlement_->sayCardPaid();
      close();
      return;
    case CardOutcome::kUnknown:
    case CardOutcome::kBlocked:
      return focusWhole(cardNumber_);
    case CardOutcome::kWrongPassword:
      return focusWhole(password_);
    case CardOutcome::kNoAnswer:
      return focusWhole(cash_);
    case CardOutcome::kTooLittle:
      return;
  }
}
