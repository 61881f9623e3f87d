#include "reports/TenderSum.h"

#include "base/NumberText.h"
#include "saleslib/ClsDayStat.h"

std::string TenderSum::text() const {
  return std::string(kind->name) + " [" + sumText(sum) + "] 元";
}

std::vector<TenderSum> tenderSums(const ClsDayStat& day, const ClsSysParam& rules) {
  std::vector<TenderSum> sums;
  for (const TenderKind* kind : optionalTenders(rules)) {
    sums.push_back({kind, day.SumTendered(kind->tender)});
  }
  return sums;
}
