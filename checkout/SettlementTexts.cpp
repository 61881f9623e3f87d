#include "checkout/SettlementTexts.h"

#include <QCoreApplication>

#include "app/TenderTexts.h"
#include "base/DateTime.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "saleslib/ClsSell.h"

namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(SettlementTexts)
};

std::string plainFigure(Currency amount) {
  return generalNumber(amount);
}

/// Names and figures of these kinds of payment, one behind the other.
QString tenderFigures(const std::vector<const TenderKind*>& kinds, const ClsSell& bill,
                      std::string (*figure)(Currency)) {
  QString text;
  for (const TenderKind* kind : kinds) {
    text += Texts::tr("%1%2", "kind of payment and its figure, before the next one")
                .arg(tenderName(*kind), qtText(figure(bill.Tendered(kind->tender))));
  }
  return text;
}

}  // namespace

QString settlementTitle(const ClsSell& bill, const DateTime& now, const std::string& cashier) {
  return Texts::tr("单号：%1结账时间：%2收银员：%3")
      .arg(QString::number(bill.BillNo()), qtText(shortTime(now)), qtText(cashier));
}

QString goodsCount(const ClsSell& bill) {
  return Texts::tr("共 %1 件商品").arg(qtText(generalNumber(bill.Quantity())));
}

QString changeText(const ClsSell& bill) {
  return bill.FiguresFit() ? qtText(oneDecimal(bill.Change())) : Texts::tr("超出范围");
}

QString statusText(const ClsSell& bill, const ClsSysParam& rules) {
  return Texts::tr("应收%1 %2找零%3元")
      .arg(qtText(plainFigure(bill.Amount())),
           tenderFigures(tendersOf(bill, rules), bill, plainFigure),
           qtText(plainFigure(bill.Change())));
}

QString lastBillText(const ClsSell& bill, const ClsSysParam& rules) {
  return Texts::tr("上一单：金额 %1实收%2找零%3  优惠%4")
      .arg(qtText(oneDecimal(bill.Amount())),
           tenderFigures(moneyTendersOf(bill, rules), bill, oneDecimal), changeText(bill),
           qtText(plainFigure(bill.Favorable())));
}

QString cardRefusal(const CardResult& result) {
  switch (result.outcome) {
    case CardOutcome::kUnknown:
      return Texts::tr("储值卡号错误,请重输");
    case CardOutcome::kBlocked:
      return Texts::tr("会员卡被禁用！卡号：%1，持卡人：%2")
          .arg(qtText(result.card.number), qtText(result.card.memberName));
    case CardOutcome::kWrongPassword:
      return Texts::tr("储值卡密码错误,请重输");
    case CardOutcome::kTooLittle:
      return Texts::tr("储值卡余额不够,请先充值");
    case CardOutcome::kNoAnswer:
      return Texts::tr("储值卡没有回应，请改用其它方式付款");
    case CardOutcome::kDone:
      break;
  }
  return {};
}

QString cardPaid(Currency balance) {
  return Texts::tr(" 储值卡消费成功！余额：%1 ").arg(qtText(plainFigure(balance)));
}

QString cardNotCharged(const char* why) {
  return Texts::tr("储值卡没有扣款：%1").arg(qtText(why));
}

QString cashNotStored(const std::string& why) {
  return Texts::tr("没有收款，请再确认一次：%1").arg(qtText(why));
}

QString changeDoesNotFit() {
  return Texts::tr("没有收款：金额太大，找零算不出来。");
}

QString noCardForRefunds() {
  return Texts::tr("应收是负数，不能用储值卡付款。");
}
