#include "members/TopUpTexts.h"

#include <QCoreApplication>

#include "base/NumberText.h"
#include "platform/QtText.h"

namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(TopUpTexts)
};

}  // namespace

QString noCardNumber() {
  return Texts::tr("会员卡号不能为空,请输入卡号");
}

QString notPositive() {
  return Texts::tr("请输入正数");
}

QString numberChanged() {
  return Texts::tr("卡号已改变，请在卡号处按回车重新查找会员！");
}

QString topUpRefusal(const CardResult& result) {
  if (result.outcome == CardOutcome::kBlocked) {
    return Texts::tr("会员卡被禁用！卡号：%1，持卡人：%2")
        .arg(qtText(result.card.number), qtText(result.card.memberName));
  }
  return Texts::tr("没有这张会员卡，没有充值！");
}

QString topUpFailed(const char* why) {
  return Texts::tr("充值没有完成，卡内余额没有改变：%1").arg(qtText(why));
}

QString topUpDone(const TopUp& topUp, Currency balance) {
  return Texts::tr("充值成功！本次充值%1,充值后卡内余额%2  ")
      .arg(qtText(generalNumber(topUp.credited)), qtText(generalNumber(balance)));
}
