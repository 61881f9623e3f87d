#include "checkout/FigureCheck.h"

#include <QStringList>
#include <algorithm>

#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/Messages.h"
#include "platform/QtText.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSysParam.h"

namespace {

constexpr Currency kHighPrice = Currency::fromScaled(100'000 * Currency::kScale);
constexpr Currency kMuchChange = Currency::fromScaled(10'000 * Currency::kScale);
constexpr int kBarcodeDigits = 8;

bool looksLikeBarcode(const QString& typed) {
  const std::string text = halfWidth(typed.toStdString());
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return std::count_if(text.begin(), text.end(), isDigit) >= kBarcodeDigits &&
         text.find('.') == std::string::npos;
}

QString yuan(Currency amount) {
  return qtText(twoDecimals(amount));
}

}  // namespace

FigureCheck::FigureCheck(const ClsSysParam& rules, Messages& screen)
    : rules_(rules), screen_(screen) {}

bool FigureCheck::price(const QString& typed, Currency price) const {
  if (price < kHighPrice && !looksLikeBarcode(typed)) return true;
  return isMeant(tr("单价是 %1 元，确定吗？").arg(yuan(price)));
}

bool FigureCheck::discount(Discount factor) const {
  if (factor <= Discount()) return true;
  return isMeant(tr("折扣 %1 大于 1，会比原价贵，确定吗？").arg(qtText(generalNumber(factor))));
}

bool FigureCheck::payment(const ClsSell& bill, const QString& cash) const {
  const Currency change = bill.Change();
  QStringList doubts;
  if (!Currency::parse(cash.toStdString())) {
    doubts << tr("现金“%1”不是数字，将按 %2 元收款。").arg(cash, yuan(bill.Cash()));
  }
  if (change < Currency()) doubts << tr("收款不够，还差 %1 元。").arg(yuan(Currency() - change));
  if (change > kMuchChange) doubts << tr("找零有 %1 元。").arg(yuan(change));
  return doubts.isEmpty() || isMeant(tr("%1\n确定这样收款吗？").arg(doubts.join('\n')));
}

bool FigureCheck::isMeant(const QString& question) const {
  return !rules_.CheckPayment() || screen_.askYesNo(question, {}, false);
}
