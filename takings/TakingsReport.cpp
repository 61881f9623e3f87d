#include "takings/TakingsReport.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "store/Connection.h"
#include "store/Snapshot.h"
#include "takings/GoodsReading.h"
#include "takings/GoodsSections.h"
#include "takings/TakingsSource.h"
#include "takings/TimeSections.h"

namespace {

constexpr double kPartOfBills = 0.9;

std::vector<std::string> heading(TakingsSource& shop, const ReportTerms& terms,
                                 const DateTime& now) {
  std::vector<std::string> lines;
  if (const std::string name = shop.shopName(); !name.empty()) lines.push_back(name);
  lines.push_back(dateText(terms.from) + " 至 " + dateText(terms.to));
  lines.push_back("制表时间：" + generalText(now));
  return lines;
}

}  // namespace

std::optional<Report> takingsReport(Connection& shop, const ReportTerms& terms, const DateTime& now,
                                    const ReportProgress& goOn) {
  const Snapshot oneState(shop);
  FileTakings file(shop);
  return takingsReport(file, terms, now, goOn);
}

std::optional<Report> takingsReport(TakingsSource& shop, const ReportTerms& terms,
                                    const DateTime& now, const ReportProgress& goOn) {
  ensure(terms.from <= terms.to, "a period does not end before it begins");
  const Date slowFrom = terms.slowDays ? plusDays(terms.to, 1 - *terms.slowDays) : terms.from;
  const std::optional<Takings> takings =
      readTakings(shop, {terms.from, terms.to, slowFrom},
                  [&goOn](double part) { return goOn(part * kPartOfBills); });
  if (!takings || !goOn(kPartOfBills)) return std::nullopt;
  const GoodsByCode goods = byCode(*takings);
  const std::optional<StockLists> lists = readStockLists(
      shop, goods, terms.stockBelow, terms.mostGoods, [&goOn] { return goOn(kPartOfBills); });
  if (!lists) return std::nullopt;

  Report report{"经营报表", heading(shop, terms, now), {}};
  const auto add = [&report](ReportSection section) {
    makeTextsSound(section);
    report.sections.push_back(std::move(section));
  };
  const auto names = shop.operatorNames();
  add(summarySection(*takings));
  if (isLongerThanAMonth(*takings)) add(monthSection(*takings));
  add(daySection(*takings));
  add(hourSection(*takings));
  if (shop.hasTills()) add(tillSection(*takings));
  add(operatorSection(*takings, names));
  add(categorySection(*takings));
  add(goodsSection(shop, goods, terms.mostGoods));
  add(tenderSection(*takings));
  add(discountSection(*takings, names));
  add(returnSection(shop, *takings, terms.mostGoods));
  add(slowSection(lists->slow, slowFrom, terms.to));
  add(lowSection(lists->low, terms.stockBelow));
  return report;
}
