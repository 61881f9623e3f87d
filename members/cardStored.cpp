#include "members/cardStored.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "devices/ReceiptPrinter.h"
#include "members/TopUpSlip.h"
#include "members/TopUpTexts.h"
#include "platform/QtText.h"
#include "platform/VirtualKey.h"
#include "saleslib/CardNumber.h"
#include "shell/Modal.h"

namespace {

std::string textOf(const QLineEdit* edit) {
  return edit->text().toStdString();
}

std::optional<Currency> money(const QLineEdit* edit) {
  return Currency::parse(textOf(edit));
}

}  // namespace

cardStored::cardStored(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kPlain, parent),
      pos_(pos),
      txtBh_(field("txtBh")),
      txtName_(figure("txtName")),
      zklb_(figure("zklb")),
      beforeMoney_(figure("beforeMoney")),
      inMoney_(field("inMoney")),
      addMoney_(field("addMoney")),
      afterMoney_(figure("afterMoney")),
      txtbz_(field("txtbz")),
      cmdOk2_(button("cmdOk2", tr("确定"))),
      cmdCancel_(button("cmdCancel", tr("取消"))) {
  setObjectName("cardStored");
  setWindowTitle(tr("会员充值"));
  arrange();
  setUpEnter();
  connect(cmdOk2_, &QPushButton::clicked, this, &cardStored::store);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

QLineEdit* cardStored::figure(const char* name) {
  QLineEdit* made = field(name);
  made->setReadOnly(true);
  made->setFocusPolicy(Qt::ClickFocus);
  return made;
}

void cardStored::arrange() {
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(32, 20, 32, 20);
  all->setSpacing(16);
  all->addWidget(label("Label1", tr("会 员 充 值")), 0, Qt::AlignHCenter);
  all->addLayout(fields());
  all->addLayout(buttonRow({cmdOk2_, cmdCancel_}));
}

QLayout* cardStored::fields() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(12);
  const auto place = [&](int row, int column, const char* name, const QString& caption,
                         QLineEdit* edit, int span = 1) {
    grid->addWidget(label(name, caption), row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(edit, row, column + 1, 1, span);
  };
  place(0, 0, "lblBh", tr("卡号"), txtBh_);
  place(0, 2, "lblName", tr("会员姓名"), txtName_);
  place(1, 0, "lblZklb", tr("折扣类别"), zklb_);
  place(1, 2, "lblBefore", tr("充值前余额"), beforeMoney_);
  place(2, 0, "lblIn", tr("付款金额"), inMoney_);
  place(2, 2, "lblAdd", tr("充值金额"), addMoney_);
  place(3, 2, "lblAfter", tr("充值后余额"), afterMoney_);
  place(4, 0, "lblBz", tr("备注"), txtbz_, 3);
  grid->setColumnMinimumWidth(1, 240);
  grid->setColumnMinimumWidth(3, 240);
  return grid;
}

void cardStored::setUpEnter() {
  onEnter(txtBh_, [this] { findCard(); });
  enterLeads(inMoney_, addMoney_);
  onEnter(addMoney_, [this] {
    if (const auto after = balanceAfter()) afterMoney_->setText(qtText(generalNumber(*after)));
  });
  enterLeads(txtbz_, cmdOk2_);
}

bool cardStored::handleKey(const QObject* watched, const QKeyEvent& event) {
  const int key = virtualKey(event);
  const bool isAmount = watched == inMoney_ || watched == addMoney_;
  if (!isAmount || !txtBh_->text().isEmpty() || key == 0 || key == pos_.gKeyBoard.mEsc) {
    return KeyDrivenDialog::handleKey(watched, event);
  }
  askForCard();
  (watched == inMoney_ ? inMoney_ : addMoney_)->clear();
  return true;
}

void cardStored::askForCard() {
  messageBox(this, noCardNumber());
  txtBh_->setFocus();
}

void cardStored::findCard() {
  std::optional<StoredCard> card;
  try {
    card = pos_.topUpBooks().card(textOf(txtBh_));
  } catch (const Failure&) {
    // A card that cannot be read counts as not found.
  }
  txtBh_->setText(qtText(card ? card->number : storedCardNumber(textOf(txtBh_))));
  if (!card) return;
  if (!card->isEnabled) {
    messageBox(this, topUpRefusal({CardOutcome::kBlocked, *card}));
    focusWhole(txtBh_);
    return;
  }
  showCard(*card);
}

void cardStored::showCard(const StoredCard& card) {
  cardFound_ = card.number;
  txtName_->setText(qtText(card.memberName));
  zklb_->setText(qtText(card.discountClass));
  beforeMoney_->setText(qtText(generalNumber(card.balance)));
  // What was worked out for a card before is not this card's balance.
  afterMoney_->clear();
  txtName_->setEnabled(false);
  focusWhole(inMoney_);
}

/// Nothing when one of the two is no number, or the sum does not fit.
std::optional<Currency> cardStored::balanceAfter() const {
  const auto before = money(beforeMoney_);
  const auto credited = money(addMoney_);
  if (!before || !credited) return std::nullopt;
  try {
    return *before + *credited;
  } catch (const Overflow&) {
    return std::nullopt;
  }
}

/// What is to be stored; nothing when a field is refused, which is said and has the focus then.
std::optional<TopUp> cardStored::entered() {
  const auto refuse = [this](QLineEdit* edit) -> std::optional<TopUp> {
    messageBox(this, notPositive());
    focusWhole(edit);
    return std::nullopt;
  };
  const auto paid = money(inMoney_);
  if (!paid || *paid <= Currency()) return refuse(inMoney_);
  const auto credited = money(addMoney_);
  if (!credited || *credited < Currency()) return refuse(addMoney_);
  const auto before = money(beforeMoney_);
  if (!before) return refuse(beforeMoney_);
  if (afterMoney_->text().isEmpty()) {
    const auto after = balanceAfter();
    if (!after) return refuse(addMoney_);
    afterMoney_->setText(qtText(generalNumber(*after)));
  }
  const auto after = money(afterMoney_);
  if (!after) return refuse(afterMoney_);
  return TopUp{textOf(txtBh_), *paid, *credited, *after, trimmed(textOf(txtbz_)), *before};
}

void cardStored::store() {
  txtBh_->setText(qtText(memberNumber(textOf(txtBh_))));
  if (txtBh_->text().isEmpty()) {
    askForCard();
    return;
  }
  const auto topUp = entered();
  if (!topUp) return;
  // The balance shown is that of the card found; another number needs its own look-up first.
  if (topUp->cardNumber != cardFound_) {
    messageBox(this, numberChanged());
    focusWhole(txtBh_);
    return;
  }
  if (!load(*topUp)) return;
  printSlip();
  accept();
}

/// Says what became of it.
bool cardStored::load(const TopUp& topUp) {
  try {
    const CardResult result = pos_.topUpBooks().store(topUp);
    const bool isLoaded = result.outcome == CardOutcome::kDone;
    messageBox(this, isLoaded ? topUpDone(topUp, result.card.balance) : topUpRefusal(result));
    return isLoaded;
  } catch (const Failure& failure) {
    messageBox(this, topUpFailed(failure.what()));
    return false;
  }
}

// The money is on the card: a printer that fails costs the slip, not the top-up.
void cardStored::printSlip() {
  try {
    const SlipTexts texts{textOf(txtBh_), textOf(beforeMoney_), textOf(inMoney_), textOf(addMoney_),
                          textOf(afterMoney_)};
    ReceiptPrinter::ofSettings(pos_.gPosSet, *pos_.ports)->print(topUpSlip(pos_.gSysParam, texts));
  } catch (const Failure& error) {
    messageBox(this, qtText(error.what()));
  }
}
