#include "takings/GoodsSections.h"

#include <algorithm>
#include <utility>

#include "base/NumberText.h"
#include "takings/TakingsSource.h"

namespace {

using Kind = ReportColumn::Kind;
using Form = ReportChart::Form;
using Cells = std::vector<ReportCell>;

constexpr const char* kInStockUnits = "数量按库存单位。";

std::string listed(std::size_t shown, std::int64_t all, const char* order) {
  std::string text = "共 " + std::to_string(all) + " 种";
  if (static_cast<std::int64_t>(shown) < all) {
    text.append("，").append(order).append("，列出前 ").append(std::to_string(shown)).append(" 种");
  }
  return text + "。";
}

/// The first ones by what `sum` makes of them, the largest first, and by code among equals.
template <class Map, class Sum>
std::vector<const typename Map::value_type*> largest(const Map& map, std::size_t most,
                                                     const Sum& sum) {
  std::vector<const typename Map::value_type*> entries;
  entries.reserve(map.size());
  for (const auto& entry : map) entries.push_back(&entry);
  const auto end = entries.begin() + static_cast<std::ptrdiff_t>(std::min(most, entries.size()));
  std::partial_sort(entries.begin(), end, entries.end(), [&](const auto* a, const auto* b) {
    const Currency first = sum(a->second), second = sum(b->second);
    return first != second ? first > second : a->first < b->first;
  });
  entries.erase(end, entries.end());
  return entries;
}

Currency moneyOf(const GoodsSums& sums) {
  return sums.earned.money;
}

const std::vector<ReportColumn> kGoodsColumns = {
    {"数量", Kind::kQuantity}, {"销售额", Kind::kMoney}, {"占比", Kind::kShare},
    {"折扣", Kind::kMoney},    {"毛利", Kind::kMoney},   {"毛利率", Kind::kShare},
};

Cells goodsCells(Cells first, const GoodsSums& sums, Currency whole) {
  const Earned& earned = sums.earned;
  first.insert(first.end(),
               {sums.quantity, earned.money, shareOf(earned.money, whole), sums.lineDiscount,
                earned.profit(), shareOf(earned.profit(), earned.costed())});
  return first;
}

template <class Map>
GoodsSums allOf(const Map& map) {
  GoodsSums all;
  for (const auto& [key, sums] : map) all.add(sums);
  return all;
}

/// The name that the shop's goods have by now, else the one of the books.
std::string nameOf(TakingsSource& shop, const std::string& code, const std::string& inBooks) {
  const std::string name = shop.goodsName(code);
  return name.empty() ? inBooks : name;
}

ReportSection stockSection(const char* title, const StockedList& list, const char* order) {
  return {title,
          listed(list.first.size(), list.all, order),
          {{"编码", Kind::kText},
           {"名称", Kind::kText},
           {"分类", Kind::kText},
           {"库存", Kind::kQuantity}},
          {}};
}

}  // namespace

// What was sold before the period only shows that goods move.
GoodsByCode byCode(const Takings& takings) {
  GoodsByCode goods;
  for (const auto& [key, sums] : takings.sold) goods[key.code].add(sums);
  return goods;
}

ReportSection categorySection(const Takings& takings) {
  std::unordered_map<std::string, GoodsSums> categories;
  for (const auto& [key, sums] : takings.sold) {
    if (sums.lines > 0) categories[key.category].add(sums);
  }
  const GoodsSums all = allOf(categories);
  ReportSection section{"按分类", kInStockUnits, {{"分类", Kind::kText}}, {}};
  section.columns.insert(section.columns.end(), kGoodsColumns.begin(), kGoodsColumns.end());
  for (const auto* entry : largest(categories, categories.size(), moneyOf)) {
    const std::string& name = entry->first;
    section.rows.push_back(
        goodsCells({name.empty() ? "（没有分类）" : name}, entry->second, moneyOf(all)));
  }
  section.totals = goodsCells({"合计"}, all, moneyOf(all));
  section.chart = ReportChart{Form::kBars, 2};
  return section;
}

ReportSection goodsSection(TakingsSource& shop, const GoodsByCode& goods, std::size_t most) {
  GoodsByCode sold;
  for (const auto& [code, sums] : goods) {
    if (sums.lines > 0) sold[code] = sums;
  }
  const GoodsSums all = allOf(sold);
  const auto first = largest(sold, most, moneyOf);
  ReportSection section{"按商品",
                        listed(first.size(), std::ssize(sold), "按销售额") + kInStockUnits,
                        {{"编码", Kind::kText}, {"名称", Kind::kText}},
                        {}};
  section.columns.insert(section.columns.end(), kGoodsColumns.begin(), kGoodsColumns.end());
  for (const auto* entry : first) {
    const GoodsSums& sums = entry->second;
    section.rows.push_back(
        goodsCells({sums.code, nameOf(shop, sums.code, sums.name)}, sums, moneyOf(all)));
  }
  section.totals = goodsCells({"合计", std::monostate()}, all, moneyOf(all));
  section.chart = ReportChart{Form::kBars, 3, 1};
  return section;
}

ReportSection returnSection(TakingsSource& shop, const Takings& takings, std::size_t most) {
  const auto first =
      largest(takings.returned, most, [](const ReturnSums& sums) { return sums.refunded; });
  ReportSection section{"退货",
                        listed(first.size(), std::ssize(takings.returned), "按退款") +
                            kInStockUnits + "按退货的时间统计，原单据可能更早。",
                        {{"编码", Kind::kText},
                         {"名称", Kind::kText},
                         {"笔数", Kind::kCount},
                         {"数量", Kind::kQuantity},
                         {"退款", Kind::kMoney}},
                        {}};
  for (const auto* entry : first) {
    const ReturnSums& sums = entry->second;
    section.rows.push_back({sums.code, nameOf(shop, sums.code, sums.name), sums.returns,
                            sums.quantity, sums.refunded});
  }
  section.totals = {"合计", std::monostate(), takings.all.returns, std::monostate(),
                    takings.all.refunded};
  return section;
}

ReportSection slowSection(const StockedList& slow, const Date& from, const Date& to) {
  ReportSection section = stockSection("没有动销的商品", slow, "按库存金额");
  section.note = dateText(from) + " 至 " + dateText(to) + " 没有卖过。" + section.note;
  section.columns.insert(section.columns.end(),
                         {{"进价", Kind::kMoney}, {"库存金额", Kind::kMoney}});
  for (const StockedGoods& goods : slow.first) {
    section.rows.push_back(
        {goods.code, goods.name, goods.category, goods.stock, goods.costPrice, goods.value});
  }
  section.totals = {"合计",           std::monostate(), std::monostate(),
                    std::monostate(), std::monostate(), slow.value};
  return section;
}

ReportSection lowSection(const StockedList& low, double limit) {
  ReportSection section = stockSection("库存不足的商品", low, "从最少的起");
  section.note = "现在的库存少于 " + generalNumber(limit) + "。" + section.note;
  section.columns.push_back({"期内销量", Kind::kQuantity});
  for (const StockedGoods& goods : low.first) {
    section.rows.push_back({goods.code, goods.name, goods.category, goods.stock, goods.sold});
  }
  return section;
}
