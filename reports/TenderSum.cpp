#include "reports/TenderSum.h"

#include <QCoreApplication>

#include "app/TenderTexts.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "saleslib/ClsDayStat.h"

std::string TenderSum::printed() const {
  // untranslated: printed and exported
  std::string text = "其中";
  // untranslated: printed and exported
  return text.append(kind->name).append(" [").append(sumText(sum)).append("] 元");
}

QString TenderSum::shown(const QString& sentence) const {
  return sentence.arg(tenderName(*kind), shownSum(sum));
}

QString shownSum(const std::optional<Currency>& sum) {
  return sum ? qtText(twoDecimals(*sum)) : QCoreApplication::translate("TenderSum", "超出范围");
}

std::vector<TenderSum> tenderSums(const ClsDayStat& day, const ClsSysParam& rules) {
  std::vector<TenderSum> sums;
  for (const TenderKind* kind : optionalTenders(rules)) {
    sums.push_back({kind, day.SumTendered(kind->tender)});
  }
  return sums;
}
