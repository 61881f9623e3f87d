#include "takings/TimeSections.h"

#include "base/Discount.h"

namespace {

using Kind = ReportColumn::Kind;
using Form = ReportChart::Form;
using Cells = std::vector<ReportCell>;
using Names = std::map<std::int64_t, std::string>;

/// A line of more points is a smear; the months show it.
constexpr std::size_t kMostDaysDrawn = 400;

/// Rounded to 0.01; nothing of no bills.
ReportCell perBill(Currency sum, std::int64_t bills) {
  if (bills == 0) return {};
  return lineAmount(sum, 1.0 / static_cast<double>(bills), Discount());
}

const std::vector<ReportColumn> kTakingsColumns = {
    {"单据", Kind::kCount}, {"件数", Kind::kQuantity}, {"营业额", Kind::kMoney},
    {"优惠", Kind::kMoney}, {"毛利", Kind::kMoney},    {"毛利率", Kind::kShare},
};
constexpr std::size_t kDueColumn = 3;  ///< behind the first

Cells takingsCells(ReportCell first, const BillSums& sums) {
  return {std::move(first),
          sums.bills,
          sums.quantity,
          sums.due,
          sums.favorable,
          sums.earned.profit(),
          shareOf(sums.earned.profit(), sums.earned.costed())};
}

/// A table of bills by what `label` makes of each key.
template <class Key, class Label>
ReportSection takingsSection(const char* title, const char* first,
                             const std::map<Key, BillSums>& sums, const BillSums& all,
                             const Label& label) {
  ReportSection section{title, "", {{first, Kind::kText}}, {}};
  section.columns.insert(section.columns.end(), kTakingsColumns.begin(), kTakingsColumns.end());
  for (const auto& [key, each] : sums) section.rows.push_back(takingsCells(label(key), each));
  section.totals = takingsCells("合计", all);
  section.chart = ReportChart{Form::kColumns, kDueColumn};
  return section;
}

std::string hourText(int hour) {
  return (hour < 10 ? "0" : "") + std::to_string(hour) + " 点";
}

std::string nameOf(std::int64_t number, const Names& names) {
  const auto found = names.find(number);
  return found == names.end() ? "操作员 " + std::to_string(number) + "（已删除）" : found->second;
}

std::string monthOf(const Date& day) {
  constexpr std::size_t kYearAndMonth = 7;
  return dateText(day).substr(0, kYearAndMonth);
}

std::map<std::string, BillSums> byMonth(const Takings& takings) {
  std::map<std::string, BillSums> months;
  for (const auto& [day, sums] : takings.byDay) months[monthOf(day)].add(sums);
  return months;
}

}  // namespace

ReportSection summarySection(const Takings& takings) {
  const BillSums& all = takings.all;
  const Currency rounding = all.due - all.earned.money;
  const Currency left = all.earned.profit() - all.favorable + rounding;
  ReportSection section{
      "概况", "毛利只算有进价的商品。", {{"项目", Kind::kText}, {"数字", Kind::kMoney}}, {}};
  section.rows = {{"有营业的天数", static_cast<std::int64_t>(takings.byDay.size())},
                  {"单据", all.bills},
                  {"件数", all.quantity},
                  {"营业额", all.due},
                  {"每单平均", perBill(all.due, all.bills)},
                  {"优惠", all.favorable},
                  {"实收", all.due - all.favorable},
                  {"商品金额", all.earned.money},
                  {"其中没有进价的", all.earned.costless},
                  {"成本", all.earned.cost},
                  {"毛利", all.earned.profit()},
                  {"毛利减优惠和舍入", left},
                  {"退货笔数", all.returns},
                  {"退款", all.refunded}};
  return section;
}

bool isLongerThanAMonth(const Takings& takings) {
  const auto& days = takings.byDay;
  return !days.empty() && monthOf(days.begin()->first) != monthOf(days.rbegin()->first);
}

ReportSection monthSection(const Takings& takings) {
  return takingsSection("按月", "月份", byMonth(takings), takings.all,
                        [](const std::string& month) { return month; });
}

ReportSection daySection(const Takings& takings) {
  ReportSection section = takingsSection("按日", "日期", takings.byDay, takings.all, dateText);
  section.chart->form = Form::kLine;
  if (section.rows.size() > kMostDaysDrawn) section.chart.reset();
  return section;
}

ReportSection hourSection(const Takings& takings) {
  return takingsSection("按时段", "时段", takings.byHour, takings.all, hourText);
}

ReportSection tillSection(const Takings& takings) {
  return takingsSection("按收银机", "机号", takings.byTill, takings.all,
                        [](std::int64_t till) { return std::to_string(till); });
}

ReportSection operatorSection(const Takings& takings, const Names& names) {
  ReportSection section = takingsSection("按操作员", "操作员", takings.byOperator, takings.all,
                                         [&](std::int64_t who) { return nameOf(who, names); });
  section.columns.insert(
      section.columns.end(),
      {{"每单平均", Kind::kMoney}, {"退货笔数", Kind::kCount}, {"退款", Kind::kMoney}});
  const auto extend = [](Cells& row, const BillSums& sums) {
    row.insert(row.end(), {perBill(sums.due, sums.bills), sums.returns, sums.refunded});
  };
  std::size_t row = 0;
  for (const auto& [who, sums] : takings.byOperator) extend(section.rows[row++], sums);
  extend(section.totals, takings.all);
  section.chart->form = Form::kBars;
  return section;
}

// What goes back to the customers makes the kinds of payment what was due.
ReportSection tenderSection(const Takings& takings) {
  ReportSection section{"付款方式",
                        "退货从原单据中减去，退款在这里和找零算在一起。",
                        {{"方式", Kind::kText}, {"单据", Kind::kCount}, {"金额", Kind::kMoney}},
                        {}};
  Currency back = takings.all.due;
  for (const TenderKind& kind : tenderKinds()) {
    const auto found = takings.byTender.find(kind.tender);
    if (found == takings.byTender.end()) continue;
    section.rows.push_back({kind.name, found->second.bills, found->second.sum});
    back -= found->second.sum;
  }
  section.rows.push_back({"找零和退款", ReportCell(), back});
  section.totals = {"合计", takings.all.bills, takings.all.due};
  section.chart = ReportChart{Form::kBars, 2};
  return section;
}

ReportSection discountSection(const Takings& takings, const Names& names) {
  ReportSection section{"折扣与优惠",
                        "商品折扣是单价乘数量比金额多的部分；舍入是应收比商品金额少的部分。",
                        {{"操作员", Kind::kText},
                         {"打折的商品行", Kind::kCount},
                         {"商品折扣", Kind::kMoney},
                         {"结账时的优惠", Kind::kMoney},
                         {"舍入", Kind::kMoney},
                         {"合计", Kind::kMoney}},
                        {}};
  const auto cells = [](ReportCell first, const BillSums& sums) {
    const Currency rounding = sums.earned.money - sums.due;
    return Cells{std::move(first),  sums.discountedLines,
                 sums.lineDiscount, sums.favorable,
                 rounding,          sums.lineDiscount + sums.favorable + rounding};
  };
  for (const auto& [who, sums] : takings.byOperator) {
    section.rows.push_back(cells(nameOf(who, names), sums));
  }
  section.totals = cells("合计", takings.all);
  return section;
}
