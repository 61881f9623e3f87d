#include <sstream>

#include "sync/ShopServerFixture.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"
#include "tools/ServerTakings.h"
#include "tools/Tool.h"

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
    ServerTakings whole(*owner, {.till = till});
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

TEST_F(WholeReportTest, ListsWhatTheTillsSoldAndFindsABill) {
  const auto first = join(1, "first"), second = join(2, "second");
  const int part = first->till.sell(7.5).first, whole = first->till.sell(3).first;
  const int other = second->till.sell(2).first;
  first->till.takeBack(part, 1.5);
  first->till.takeBack(whole, 3);
  first->bring();
  second->bring();
  owner->close();
  std::string server;
  for (const auto& [name, value] : server_->owner()) server += name + "=" + value + " ";
  const auto sales = [&server](std::vector<const char*> further) {
    further.insert(further.begin(), {"tilladmin", "shop", "sales", "--server", server.c_str()});
    std::istringstream in;
    std::ostringstream out;
    Console console{in, out, out, localTime};
    EXPECT_EQ(runTool(static_cast<int>(further.size()), further.data(), console), 0);
    return out.str();
  };
  EXPECT_THAT(sales({}), HasSubstr("合计 3 单，5 行，数量 11，金额 22.82"));
  EXPECT_THAT(sales({"--till", "2"}), AllOf(HasSubstr("2\t" + std::to_string(other) + '\t'),
                                            HasSubstr("合计 1 单，2 行，数量 3")));
  EXPECT_THAT(
      sales({"--bill", std::to_string(part).c_str()}),
      AllOf(HasSubstr("\tB\tB\t6\t1.333\t1\t8.00\n"), HasSubstr("合计 1 单，2 行，数量 7")));
  EXPECT_THAT(sales({"--goods", "b", "--operator", "1"}), HasSubstr("合计 2 单，2 行，数量 8"));
  EXPECT_THAT(sales({"--operator", "2"}), HasSubstr("合计 0 单，0 行，数量 0，金额 0.00"));
}

}  // namespace
