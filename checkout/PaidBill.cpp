#include "checkout/PaidBill.h"

#include <QCoreApplication>
#include <QStringList>

#include "base/NumberText.h"
#include "checkout/Messages.h"
#include "platform/QtText.h"
#include "saleslib/BillBooks.h"

namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(PaidBill)
};

QString billText(const ClsSell& bill) {
  return Texts::tr("流水号 %1，金额 %2").arg(bill.BillNo()).arg(qtText(twoDecimals(bill.Amount())));
}

void tell(Messages& screen, const QString& what, const QStringList& bills) {
  if (!bills.isEmpty()) screen.ShowMessage(what.arg(bills.join("\n")));
}

}  // namespace

void completePaidBills(BillBooks& books, Messages& screen) {
  QStringList stored, waiting;
  for (const auto& [bill, isSettled, fault] : books.completePaid()) {
    const QString text = billText(*bill);
    (isSettled ? stored : waiting)
        .append(fault.empty() ? text
                              : Texts::tr("%1：%2", "bill and why not").arg(text, qtText(fault)));
  }
  tell(screen, Texts::tr("上次程序中断前已收款的单据，现在已补存，请勿重新录入：\n%1"), stored);
  tell(screen, Texts::tr("已收款的单据还不能补存，请与管理员联系：\n%1"), waiting);
}
