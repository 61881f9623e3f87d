#include "checkout/Settlement.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/FigureCheck.h"
#include "checkout/Messages.h"
#include "checkout/SettlementTexts.h"
#include "devices/CustomerDisplay.h"
#include "platform/QtText.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsSysParam.h"

namespace {

std::optional<Currency> money(const QString& text) {
  return Currency::parse(text.toStdString());
}

}  // namespace

Settlement::Settlement(BillBooks& books, ClsSell& bill, CustomerDisplay& display, Messages& screen,
                       std::function<void()> paid)
    : books_(books), bill_(bill), display_(display), screen_(screen), paid_(std::move(paid)) {
  ensure(bill_.State() == 0 && bill_.AddsUp(), "payment is taken for an open bill of its lines");
}

void Settlement::begin() {
  ensure(!settled_, "a bill is settled once");
  display_.clientView(bill_.Amount(), CustomerDisplay::kTotal);
}

QString Settlement::title() const {
  return settlementTitle(bill_, books_.now(), books_.cashier().Name());
}

QString Settlement::countText() const {
  return goodsCount(bill_);
}

QString Settlement::dueText() const {
  return qtText(twoDecimals(bill_.Amount()));
}
QString Settlement::cashText() const {
  return qtText(generalNumber(bill_.Amount()));
}
QString Settlement::figureText(Tender tender) const {
  return qtText(generalNumber(bill_.Tendered(tender)));
}
QString Settlement::salesmanText() const {
  return QString::number(bill_.Salesman());
}
QString Settlement::slipText() const {
  return qtText(bill_.Slip());
}

bool Settlement::takes(Tender tender) const {
  return books_.rules().Takes(tenderKind(tender));
}

ClsSell& Settlement::unpaid() {
  ensure(!settled_, "what was paid is not changed");
  return bill_;
}

QString Settlement::figureChanged(Tender tender, const QString& text) {
  const auto amount = money(text);
  unpaid().setTendered(tender, amount.value_or(Currency()));
  return amount ? text : QStringLiteral("0");
}

QString Settlement::salesmanChanged(const QString& text) {
  const auto number = parseWhole16(text.toStdString());
  unpaid().setSalesman(number.value_or(std::int16_t{0}));
  return number ? text : QStringLiteral("0");
}

QString Settlement::slipChanged(const QString& text) {
  unpaid().setSlip(slipCode(text.toStdString()));
  return slipText();
}

QString Settlement::change(const QString& cash) const {
  const auto amount = money(cash);
  if (!amount) return {};
  ClsSell paid = bill_;
  paid.setCash(*amount);
  return changeText(paid);
}

void Settlement::say(const QString& text) {
  screen_.messageBox(text);
}

bool Settlement::mayBePaid(const ClsSell& paid, const QString& cash) {
  if (paid.FiguresFit()) return FigureCheck(books_.rules(), screen_).payment(paid, cash);
  say(changeDoesNotFit());
  return false;
}

// What the shop gives up is a discount, whether it is given here or on a line.
bool Settlement::mayBeGivenUp(const ClsSell& paid) {
  if (paid.Favorable() <= Currency()) return true;
  favour_ = screen_.leave({Right::kDiscount, percentOf(paid.Favorable(), paid.Amount())});
  return favour_ != nullptr;
}

void Settlement::confirmCash(const QString& cash) {
  if (settled_) return;
  ClsSell paid = bill_;
  if (const auto amount = money(cash)) paid.setCash(*amount);
  if (!mayBePaid(paid, cash) || !mayBeGivenUp(paid)) return;
  bill_.setCash(paid.Cash());
  const std::string fault = books_.markPaid(bill_);
  if (!fault.empty()) return say(cashNotStored(fault));
  settled_ = true;
  showAndPrint();
}

// A disabled card (lost, say) pays as little as it can be attached to a bill.
QString Settlement::checkCard(const QString& number) {
  CardResult refused;
  try {
    const auto card = books_.payingCard(number.toStdString());
    if (card && card->isEnabled) return qtText(card->number);
    if (card) refused = {CardOutcome::kBlocked, *card};
  } catch (const Failure&) {
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
  if (!mayBePaid(paid, "0") || !mayBeGivenUp(paid)) return std::nullopt;
  return charge(std::move(paid), password);
}

std::optional<CardOutcome> Settlement::charge(ClsSell paid, const QString& password) {
  try {
    const CardResult result = books_.payByCard(paid, password.toStdString());
    settled_ = result.outcome == CardOutcome::kDone;
    if (settled_) {
      ensure(paid.Paid() && paid.BillNo() == bill_.BillNo(), "the card paid for this bill");
      bill_ = std::move(paid);
      cardBalance_ = result.card.balance;
    } else {
      say(cardRefusal(result));
    }
    return result.outcome;
  } catch (const Failure& error) {
    say(cardNotCharged(error.what()));
    return std::nullopt;
  }
}

void Settlement::sayCardPaid() {
  ensure(settled_ && !bill_.CardNo().empty(), "the card has paid before it is said");
  say(cardPaid(cardBalance_));
  showAndPrint();
}

void Settlement::showAndPrint() {
  ensure(settled_ && bill_.Paid(), "a payment is durable before it is shown and printed");
  display_.clientView(bill_.Cash(), CustomerDisplay::kReceived);
  paid_();
}
