#include "checkout/PaidBill.h"

#include <QCoreApplication>
#include <string>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "checkout/Messages.h"
#include "saleslib/ClsDayStat.h"
#include "saleslib/StoredCard.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kSettled = 1;

// A member who cannot be credited costs points, not the sale.
void creditMember(posMod& pos, const ClsSell& bill) {
  if (bill.MemberId() == 0) return;
  try {
    creditPurchase(*pos.gConn, bill.MemberId(), bill.Amount(), pos.gSysParam.PointUnit());
  } catch (const StoreError&) {
    return;
  }
}

QString billText(const ClsSell& bill) {
  return QCoreApplication::translate("PaidBill", "流水号 %1，金额 %2")
      .arg(bill.BillNo())
      .arg(QString::fromStdString(twoDecimals(bill.Amount())));
}

void tell(Messages& screen, const char* what, const QStringList& bills) {
  if (bills.isEmpty()) return;
  screen.ShowMessage(QCoreApplication::translate("PaidBill", what) + "\n" + bills.join("\n"));
}

}  // namespace

bool storeSettled(posMod& pos, ClsSell& bill) {
  const std::int16_t before = bill.State();
  bill.setState(kSettled);
  try {
    Transaction sale(*pos.gConn);
    if (bill.Save()) {
      creditMember(pos, bill);
      sale.commit();
      return true;
    }
  } catch (const Failure&) {
    // not stored
  }
  bill.setState(before);
  return false;
}

void completePaidBills(posMod& pos, Messages& screen) {
  ClsDayStat paid;
  paid.PaidQuery(*pos.gConn);
  QStringList stored, waiting;
  for (const auto& bill : paid.Sells()) {
    try {
      bill->LoadLines();
      (storeSettled(pos, *bill) ? stored : waiting).append(billText(*bill));
    } catch (const Failure& error) {
      waiting.append(billText(*bill) + "：" + QString::fromUtf8(error.what()));
    }
  }
  tell(screen,
       QT_TRANSLATE_NOOP("PaidBill", "上次程序中断前已收款的单据，现在已补存，请勿重新录入："),
       stored);
  tell(screen, QT_TRANSLATE_NOOP("PaidBill", "已收款的单据还不能补存，请与管理员联系："), waiting);
}
