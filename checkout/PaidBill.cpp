#include "checkout/PaidBill.h"

#include <QCoreApplication>
#include <QStringList>

#include "base/NumberText.h"
#include "checkout/Messages.h"
#include "platform/QtText.h"
#include "saleslib/BillBooks.h"

namespace {

QString billText(const ClsSell& bill) {
  return QCoreApplication::translate("PaidBill", "流水号 %1，金额 %2")
      .arg(bill.BillNo())
      .arg(qtText(twoDecimals(bill.Amount())));
}

void tell(Messages& screen, const char* what, const QStringList& bills) {
  if (bills.isEmpty()) return;
  screen.ShowMessage(QCoreApplication::translate("PaidBill", what) + "\n" + bills.join("\n"));
}

}  // namespace

void completePaidBills(BillBooks& books, Messages& screen) {
  QStringList stored, waiting;
  for (const auto& [bill, isSettled, fault] : books.completePaid()) {
    const QString text = billText(*bill);
    (isSettled ? stored : waiting).append(fault.empty() ? text : text + "：" + qtText(fault));
  }
  tell(screen,
       QT_TRANSLATE_NOOP("PaidBill", "上次程序中断前已收款的单据，现在已补存，请勿重新录入："),
       stored);
  tell(screen, QT_TRANSLATE_NOOP("PaidBill", "已收款的单据还不能补存，请与管理员联系："), waiting);
}
