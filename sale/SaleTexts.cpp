#include "sale/SaleTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "sale/Sale.h"

namespace sale_texts {

namespace {

class Texts {
  Q_DECLARE_TR_FUNCTIONS(SaleTexts)
};

template <class Number>
QString general(const Number& number) {
  return qtText(generalNumber(number));
}

}  // namespace

QString billTitle(const ClsSell& bill, const std::string& cashier) {
  return Texts::tr("流水号：%1   收银员：%2").arg(QString::number(bill.BillNo()), qtText(cashier));
}

QString rung(const SaleFigures& figures, const std::string& due) {
  return Texts::tr("%1件商品，原价合计%2   合计%3元")
      .arg(general(figures.quantity), QString::number(figures.originalPrice), qtText(due));
}

QString removed(const ClsSell& bill, const SaleFigures& figures) {
  return Texts::tr("%1件商品，原价总计%2合计%3元")
      .arg(general(bill.Quantity()), QString::number(figures.originalPrice),
           general(bill.Amount()));
}

QString recalled(const ClsSell& bill) {
  return Texts::tr("%1件商品，合计%2元").arg(general(bill.Quantity()), general(bill.Amount()));
}

QString memberInfo(const ClsMember& member, const ClsSell* latest) {
  QString about = Texts::tr("会员：%1，办卡日期：%2，累计消费：%3")
                      .arg(qtText(member.Name()), qtText(dateText(member.JoinDate())),
                           qtText(twoDecimals(member.TotalSpent())));
  if (latest == nullptr) return about;
  QStringList goods;
  for (const auto& line : latest->Items()) goods << qtText(line->SpName());
  return about + "\n" +
         Texts::tr("最近消费时间：%1，金额：%2\n最近购买商品：%3")
             .arg(qtText(generalText(latest->SellTime())), qtText(twoDecimals(latest->Amount())),
                  goods.join(Texts::tr("、")));
}

QString refusal(const StockOutcome& outcome) {
  ensure(!outcome.done(), "a refusal has a reason");
  const QString goods = qtText(outcome.goods);
  if (outcome.kind == StockOutcome::kOutOfRange) return Texts::tr("数量超出范围：%1").arg(goods);
  return Texts::tr("库存不足：%1现有库存 %2").arg(goods, general(outcome.left));
}

}  // namespace sale_texts
