#include "checkout/Settlement.h"

#include "app/posMod.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/FigureCheck.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleScreen.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsSell.h"
#include "store/Connection.h"
#include "store/Literal.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

QString shown(const std::string& text) {
  return QString::fromStdString(text);
}

std::optional<Currency> money(const QString& text) {
  return Currency::parse(text.toStdString());
}

/// Under which a typed or swiped number is looked up, in this order: as typed, because a number may
/// hold what is cleaned away. Only a swiped track loses its letters: "vip10" is not the card 10.
std::vector<std::string> cardNumbers(const std::string& typed) {
  std::vector<std::string> numbers = {typed, memberNumber(typed)};
  if (halfWidth(typed).find_first_of(";?") != std::string::npos) {
    numbers.push_back(storedCardNumber(typed));
  }
  return numbers;
}

}  // namespace

Settlement::Settlement(posMod& pos, ClsSell& bill, CustomerDisplay& display, LineReceipt& receipt,
                       SaleScreen& screen)
    : pos_(pos), bill_(bill), display_(display), receipt_(receipt), screen_(screen) {}

void Settlement::begin() {
  display_.clientView(bill_.Amount(), CustomerDisplay::kTotal);
}

QString Settlement::title() const {
  return shown("单号：" + std::to_string(bill_.BillNo()) + "结账时间：" + shortTime(pos_.clock()) +
               "收银员：" + pos_.gOperator->Name());
}

QString Settlement::countText() const {
  return shown("共 " + generalNumber(bill_.Quantity()) + " 件商品");
}

QString Settlement::dueText() const {
  return shown(twoDecimals(bill_.Amount()));
}
QString Settlement::cashText() const {
  return shown(generalNumber(bill_.Amount()));
}
QString Settlement::favorableText() const {
  return shown(generalNumber(bill_.Favorable()));
}
QString Settlement::bankCardText() const {
  return shown(generalNumber(bill_.BankCard()));
}
QString Settlement::salesmanText() const {
  return QString::number(bill_.Salesman());
}

QString Settlement::favorableChanged(const QString& text) {
  const auto amount = money(text);
  bill_.setFavorable(amount.value_or(Currency()));
  return amount ? text : QStringLiteral("0");
}

QString Settlement::bankCardChanged(const QString& text) {
  const auto amount = money(text);
  bill_.setBankCard(amount.value_or(Currency()));
  return amount ? text : QStringLiteral("0");
}

QString Settlement::salesmanChanged(const QString& text) {
  const auto number = parseWhole16(text.toStdString());
  bill_.setSalesman(number.value_or(std::int16_t{0}));
  return number ? text : QStringLiteral("0");
}

QString Settlement::change(const QString& cash, const QString& favorable,
                           const QString& bankCard) const {
  const auto cashPaid = money(cash);
  const auto given = money(favorable);
  const auto cardPaid = money(bankCard);
  if (!cashPaid || !given || !cardPaid) return {};
  try {
    return shown(oneDecimal(*cashPaid + *given + *cardPaid - bill_.Amount()));
  } catch (const Overflow&) {
    return shown(kDoesNotFit);
  }
}

void Settlement::say(const QString& text) {
  screen_.messageBox(text);
}

bool Settlement::mayBePaid(const ClsSell& paid, const QString& cash) {
  if (paid.FiguresFit()) return FigureCheck(pos_.gSysParam, screen_).payment(paid, cash);
  say(tr("没有收款：金额太大，找零算不出来。"));
  return false;
}

void Settlement::confirmCash(const QString& cash) {
  if (settled_) return;
  ClsSell paid = bill_;
  if (const auto amount = money(cash)) paid.setCash(*amount);
  if (!mayBePaid(paid, cash)) return;
  bill_.setCash(paid.Cash());
  settled_ = bill_.SavePaid();
  if (!settled_) {
    say(tr("没有收款，请再确认一次：%1").arg(shown(bill_.ErrText())));
    return;
  }
  showAndPrint();
}

// A disabled card (lost, say) pays as little as it can be attached to a bill.
QString Settlement::checkCard(const QString& number) {
  try {
    for (const std::string& each : cardNumbers(number.toStdString())) {
      const Recordset found =
          pos_.gConn->Open("select bh, name, enabled from member where bh=" + quotedText(each));
      if (found.count() == 0) continue;
      const Row& card = found.row(0);
      if (card.whole("enabled").value_or(0) != 0) return shown(card.text("bh"));
      say(tr("会员卡被禁用！卡号：%1，持卡人：%2")
              .arg(shown(card.text("bh")), shown(card.text("name"))));
      return {};
    }
  } catch (const StoreError&) {
    // counts as a card that is not known
  }
  say(tr("储值卡号错误,请重输"));
  return {};
}

Settlement::CardResult Settlement::payByCard(const QString& number, const QString& password) {
  if (settled_) return CardResult::kPaid;
  const QString card = checkCard(number);
  if (card.isNull()) return CardResult::kUnknownCard;
  const ClsSell unpaid = bill_;
  const CardResult result = tryToCharge(card.toStdString(), password.toStdString());
  settled_ = result == CardResult::kPaid;
  if (!settled_) bill_ = unpaid;
  if (result == CardResult::kWrongPassword) say(tr("储值卡密码错误,请重输"));
  if (result == CardResult::kTooLittle) say(tr("储值卡余额不够,请先充值"));
  return result;
}

Settlement::CardResult Settlement::tryToCharge(const std::string& number,
                                               const std::string& password) {
  if (bill_.Amount() < Currency()) {
    say(tr("应收是负数，不能用储值卡付款。"));
    return CardResult::kFailed;
  }
  bill_.setCardPay(roundedToFen(bill_.Amount()));
  bill_.setCash(Currency());
  bill_.setCardNo(number);
  if (!mayBePaid(bill_, "0")) return CardResult::kFailed;
  try {
    return charge(password);
  } catch (const StoreError& error) {
    say(tr("储值卡没有扣款：%1").arg(QString::fromUtf8(error.what())));
    return CardResult::kFailed;
  }
}

// Reads and writes the balance in one transaction, and the statement itself refuses to overdraw:
// two tills that charge one card at the same moment cannot both spend the same money.
Settlement::CardResult Settlement::charge(const std::string& password) {
  const std::string where =
      " where bh=" + quotedText(bill_.CardNo()) + " and password=" + quotedText(password);
  const Currency due = bill_.CardPay();

  Transaction charging(*pos_.gConn);
  const Recordset found = pos_.gConn->Open("select card from member" + where);
  if (found.count() == 0) return CardResult::kWrongPassword;
  const Currency balance = found.row(0).currency("card").value_or(Currency());
  if (balance < due) return CardResult::kTooLittle;
  const Currency left = balance - due;
  if (pos_.gConn->Execute("update member set card=" + literal(left) + where +
                          " and card>=" + literal(due)) != 1) {
    return CardResult::kTooLittle;
  }
  if (!bill_.SavePaid()) throw StoreError(bill_.ErrText());
  charging.commit();

  cardBalance_ = left;
  return CardResult::kPaid;
}

void Settlement::sayCardPaid() {
  ensure(settled_, "the card has paid before it is said");
  say(tr(" 储值卡消费成功！余额：%1 ").arg(shown(generalNumber(cardBalance_))));
  showAndPrint();
}

void Settlement::showAndPrint() {
  display_.clientView(bill_.Cash(), CustomerDisplay::kReceived);
  receipt_.PrintFoot();
}
