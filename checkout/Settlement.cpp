#include "checkout/Settlement.h"

#include "app/posMod.h"
#include "base/NumberText.h"
#include "checkout/FigureCheck.h"
#include "checkout/Messages.h"
#include "checkout/SettlementTexts.h"
#include "devices/CustomerDisplay.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsSell.h"
#include "store/StoreError.h"

namespace {

QString shown(const std::string& text) {
  return QString::fromStdString(text);
}

std::optional<Currency> money(const QString& text) {
  return Currency::parse(text.toStdString());
}

}  // namespace

Settlement::Settlement(posMod& pos, ClsSell& bill, CustomerDisplay& display, Messages& screen,
                       std::function<void()> paid)
    : pos_(pos), bill_(bill), display_(display), screen_(screen), paid_(std::move(paid)) {}

void Settlement::begin() {
  display_.clientView(bill_.Amount(), CustomerDisplay::kTotal);
}

QString Settlement::title() const {
  return settlementTitle(bill_, pos_.clock(), pos_.gOperator->Name());
}

QString Settlement::countText() const {
  return goodsCount(bill_);
}

QString Settlement::dueText() const {
  return shown(twoDecimals(bill_.Amount()));
}
QString Settlement::cashText() const {
  return shown(generalNumber(bill_.Amount()));
}
QString Settlement::figureText(Tender tender) const {
  return shown(generalNumber(bill_.Tendered(tender)));
}
QString Settlement::salesmanText() const {
  return QString::number(bill_.Salesman());
}
QString Settlement::slipText() const {
  return shown(bill_.Slip());
}

bool Settlement::takes(Tender tender) const {
  return pos_.gSysParam.Takes(tenderKind(tender));
}

QString Settlement::figureChanged(Tender tender, const QString& text) {
  const auto amount = money(text);
  bill_.setTendered(tender, amount.value_or(Currency()));
  return amount ? text : QStringLiteral("0");
}

QString Settlement::salesmanChanged(const QString& text) {
  const auto number = parseWhole16(text.toStdString());
  bill_.setSalesman(number.value_or(std::int16_t{0}));
  return number ? text : QStringLiteral("0");
}

QString Settlement::slipChanged(const QString& text) {
  bill_.setSlip(slipCode(text.toStdString()));
  return slipText();
}

QString Settlement::change(const QString& cash) const {
  const auto amount = money(cash);
  if (!amount) return {};
  ClsSell paid = bill_;
  paid.setCash(*amount);
  return shown(paid.FiguresFit() ? oneDecimal(paid.Change()) : kDoesNotFit);
}

void Settlement::say(const QString& text) {
  screen_.messageBox(text);
}

bool Settlement::mayBePaid(const ClsSell& paid, const QString& cash) {
  if (paid.FiguresFit()) return FigureCheck(pos_.gSysParam, screen_).payment(paid, cash);
  say(changeDoesNotFit());
  return false;
}

void Settlement::confirmCash(const QString& cash) {
  if (settled_) return;
  ClsSell paid = bill_;
  if (const auto amount = money(cash)) paid.setCash(*amount);
  if (!mayBePaid(paid, cash)) return;
  bill_.setCash(paid.Cash());
  settled_ = bill_.SavePaid();
  if (!settled_) return say(cashNotStored(bill_.ErrText()));
  showAndPrint();
}

// A disabled card (lost, say) pays as little as it can be attached to a bill.
QString Settlement::checkCard(const QString& number) {
  CardResult refused;
  try {
    const auto card = findStoredCard(*pos_.gConn, payingCardNumbers(number.toStdString()));
    if (card && card->isEnabled) return shown(card->number);
    if (card) refused = {CardOutcome::kBlocked, *card};
  } catch (const StoreError&) {
    // counts as a card that is not known
  }
  say(cardRefusal(refused));
  return {};
}

std::optional<CardOutcome> Settlement::payByCard(const QString& number, const QString& password) {
  if (settled_) return CardOutcome::kDone;
  const QString card = checkCard(number);
  if (card.isNull()) return CardOutcome::kUnknown;
  if (bill_.Amount() < Currency()) {
    say(noCardForRefunds());
    return std::nullopt;
  }
  ClsSell paid = bill_;
  paid.setCardPay(roundedToFen(bill_.Amount()));
  paid.setCash(Currency());
  paid.setCardNo(card.toStdString());
  if (!mayBePaid(paid, "0")) return std::nullopt;
  return charge(std::move(paid), password);
}

std::optional<CardOutcome> Settlement::charge(ClsSell paid, const QString& password) {
  try {
    const CardResult result = ::payByCard(*pos_.gConn, paid, password.toStdString());
    settled_ = result.outcome == CardOutcome::kDone;
    if (settled_) {
      bill_ = std::move(paid);
      cardBalance_ = result.card.balance;
    } else {
      say(cardRefusal(result));
    }
    return result.outcome;
  } catch (const StoreError& error) {
    say(cardNotCharged(error.what()));
    return std::nullopt;
  }
}

void Settlement::sayCardPaid() {
  ensure(settled_, "the card has paid before it is said");
  say(cardPaid(cardBalance_));
  showAndPrint();
}

void Settlement::showAndPrint() {
  display_.clientView(bill_.Cash(), CustomerDisplay::kReceived);
  paid_();
}
