#include "sync/ShopServerFixture.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"
#include "tools/ServerTakings.h"

namespace {

using testing::HasSubstr;
using testing::Not;

struct WholeReportTest : ShopServerFixture {
  static Report made(TakingsSource& source) {
    const DateTime now = localTime();
    return takingsReport(source, {plusDays(now.date, -1), plusDays(now.date, 1)}, {},
                         [](double) { return true; })
        .value();
  }
  Report ofServer(std::optional<int> till) {
    owner->close();
    ServerTakings whole(*owner, till);
    return made(whole);
  }
  static Report ofFile(Connection& file) {
    FileTakings takings(file);
    return made(takings);
  }
  /// What the report says of that.
  static ReportCell figure(const Report& report, const std::string& what) {
    for (const auto& row : report.sections.at(0).rows) {
      if (row[0] == ReportCell(what)) return row[1];
    }
    return {};
  }
};

TEST_F(WholeReportTest, SaysOfEachTillWhatItsFileSaysAndAddsThemUp) {
  const auto first = join(1, "first"), second = join(2, "second");
  for (const auto& till : {&first, &second}) {
    (*till)->till.sell(2.345, "8001");
    const int part = (*till)->till.sell(7.5).first, whole = (*till)->till.sell(3).first;
    (*till)->till.takeBack(part, 0.333);
    (*till)->till.takeBack(part, 1.1);
    (*till)->till.takeBack(whole, 3);
  }
  second->till.sell(1);
  first->bring();
  second->bring();
  const Report wholeShop = ofServer({});
  for (const auto& [till, number] : {std::pair(&first, 1), std::pair(&second, 2)}) {
    Report here = ofFile(*(*till)->till.shop), there = ofServer(number);
    EXPECT_EQ(there.sections.at(3).title, "按收银机");
    there.sections.erase(there.sections.begin() + 3);
    for (Report* report : {&here, &there}) report->sections.resize(9);  // the others are of goods
    EXPECT_EQ(textReport(there), textReport(here));
    EXPECT_EQ(wholeShop.sections.at(3).rows.at(static_cast<std::size_t>(number - 1)).at(1),
              figure(here, "单据"));
  }
  for (const char* sum : {"营业额", "实收", "商品金额", "退款"}) {
    Currency all;
    for (const auto& till : {&first, &second})
      all += std::get<Currency>(figure(ofFile(*(*till)->till.shop), sum));
    EXPECT_EQ(figure(wholeShop, sum), ReportCell(all)) << sum;
  }
}

}  // namespace
