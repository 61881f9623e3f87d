#include "sale/TopUpReport.h"

#include <QCoreApplication>
#include <QStringList>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/Messages.h"
#include "platform/QtText.h"
#include "saleslib/TopUpBooks.h"

namespace {

QString shown(Currency money) {
  return qtText(twoDecimals(money));
}

QString lineOf(const TopUp& topUp) {
  return QCoreApplication::translate("TopUpReport", "卡号 %1，付款 %2，充值 %3")
      .arg(qtText(topUp.cardNumber), shown(topUp.paid), shown(topUp.credited));
}

}  // namespace

void reportIncompleteTopUps(TopUpBooks& topUps, Messages& screen) {
  std::vector<IncompleteTopUp> untold = topUps.incomplete();
  std::erase_if(untold, [](const IncompleteTopUp& each) { return each.isReported; });
  if (untold.empty()) return;
  QStringList lines;
  for (const IncompleteTopUp& each : untold) lines << lineOf(each.topUp);
  screen.ShowMessage(
      QCoreApplication::translate("TopUpReport", "以下充值没有记入卡内，请核对后重新充值：\n%1")
          .arg(lines.join("\n")));
  try {
    for (const IncompleteTopUp& each : untold) topUps.noteReported(each);
  } catch (const Failure&) {
    // What cannot be noted is told again at the next opening.
  }
}
