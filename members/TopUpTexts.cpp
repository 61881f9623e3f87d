#include "members/TopUpTexts.h"

#include <QCoreApplication>

#include "base/NumberText.h"

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("cardStored", text);
}

QString shown(const std::string& text) {
  return QString::fromStdString(text);
}

}  // namespace

QString noCardNumber() {
  return tr("会员卡号不能为空,请输入卡号");
}

QString notPositive() {
  return tr("请输入正数");
}

QString numberChanged() {
  return tr("卡号已改变，请在卡号处按回车重新查找会员！");
}

QString topUpRefusal(const CardResult& result) {
  if (result.outcome == CardOutcome::kBlocked) {
    return tr("会员卡被禁用！卡号：%1，持卡人：%2")
        .arg(shown(result.card.number), shown(result.card.memberName));
  }
  return tr("没有这张会员卡，没有充值！");
}

QString topUpFailed(const char* why) {
  return tr("充值没有完成，卡内余额没有改变：%1").arg(QString::fromUtf8(why));
}

QString topUpDone(const TopUp& topUp, Currency balance) {
  return tr("充值成功！本次充值%1,充值后卡内余额%2  ")
      .arg(shown(generalNumber(topUp.credited)), shown(generalNumber(balance)));
}
