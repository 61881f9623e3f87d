#include "shop/GoodsMapping.h"

#include <algorithm>
#include <map>

#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kLongestName = 255;

using Kept = std::map<std::string, std::optional<GoodsField>>;

Kept keptMapping(Connection& connection, const std::string& name) {
  Kept kept;
  Rows rows = connection.query("select heading, field from goods_mapping where name = ?", name);
  while (rows.next()) kept[rows.text("heading")] = fieldOfHeading(rows.text("field"));
  return kept;
}

GoodsMapping applied(const Kept& kept, const std::vector<std::string>& headings) {
  GoodsMapping mapping;
  for (const std::string& heading : headings) {
    const auto found = kept.find(trimmed(heading));
    mapping.columns.push_back({trimmed(heading), {}});
    if (found == kept.end() || !found->second || mapping.placeOf(*found->second)) continue;
    mapping.columns.back().field = found->second;
  }
  return mapping;
}

/// Gives a field to each column that has none, as far as `meaning` knows one that is free.
template <class Meaning>
void fillIn(GoodsMapping& mapping, Meaning meaning) {
  for (GoodsMapping::Column& column : mapping.columns) {
    if (column.field) continue;
    const std::optional<GoodsField> field = meaning(column.heading);
    if (field && !mapping.placeOf(*field)) column.field = field;
  }
}

}  // namespace

std::optional<std::size_t> GoodsMapping::placeOf(GoodsField field) const {
  const auto found = std::ranges::find(columns, field, &Column::field);
  if (found == columns.end()) return std::nullopt;
  return static_cast<std::size_t>(found - columns.begin());
}

void GoodsMapping::choose(std::size_t place, std::optional<GoodsField> field) {
  const std::optional<std::size_t> before = field ? placeOf(*field) : std::nullopt;
  if (before) columns[*before].field.reset();
  columns[place].field = field;
}

std::string GoodsMapping::fault() const {
  if (placeOf(GoodsField::kItemCode) || placeOf(GoodsField::kBarcode)) return {};
  return Words::tr("表里没有“商品编码”，也没有“条码”，不知道是哪种商品。");
}

GoodsMapping guessMapping(const std::vector<std::string>& headings) {
  GoodsMapping mapping;
  for (const std::string& heading : headings) mapping.columns.push_back({trimmed(heading), {}});
  fillIn(mapping, fieldOfHeading);
  const auto isUnknown = [](const GoodsMapping::Column& column) {
    return !column.field && !column.heading.empty();
  };
  mapping.isGuessed = std::ranges::any_of(mapping.columns, isUnknown);
  fillIn(mapping, guessedField);
  return mapping;
}

void saveMapping(Connection& connection, const std::string& name, const GoodsMapping& mapping) {
  const std::string kept = trimmed(name);
  if (kept.empty() || characters(kept) > kLongestName || hasControlCharacter(kept)) {
    throw Refusal(Words::tr("列名对应的名字不能空着，不能超过 255 个字，也不能有控制字符。"));
  }
  Transaction transaction(connection);
  connection.run("delete from goods_mapping where name = ?", kept);
  for (const GoodsMapping::Column& column : mapping.columns) {
    if (column.heading.empty()) continue;
    connection.run("delete from goods_mapping where name = ? and heading = ?", kept,
                   column.heading);
    connection.run("insert into goods_mapping (name, heading, field) values (?, ?, ?)", kept,
                   column.heading, column.field ? headingOf(*column.field) : "");
  }
  transaction.commit();
}

std::vector<std::string> mappingNames(Connection& connection) {
  std::vector<std::string> names;
  Rows rows =
      connection.query("select name from goods_mapping group by name order by max(id) desc");
  while (rows.next()) names.push_back(rows.text("name"));
  return names;
}

GoodsMapping namedMapping(Connection& connection, const std::string& name,
                          const std::vector<std::string>& headings) {
  const Kept kept = keptMapping(connection, trimmed(name));
  if (kept.empty()) throw Refusal(Words::tr("没有叫“%1”的列名对应。", name));
  GoodsMapping mapping = applied(kept, headings);
  if (!mapping.fault().empty()) {
    throw Refusal(Words::tr("列名对应“%1”不是这张表的：%2", name, mapping.fault()));
  }
  return mapping;
}

GoodsMapping mappingFor(Connection& connection, const std::vector<std::string>& headings) {
  GoodsMapping guessed = guessMapping(headings);
  if (!guessed.isGuessed) return guessed;
  const auto isInSheet = [&](const auto& kept) {
    return std::ranges::any_of(headings,
                               [&](const auto& heading) { return trimmed(heading) == kept.first; });
  };
  for (const std::string& name : mappingNames(connection)) {
    const Kept kept = keptMapping(connection, name);
    if (std::ranges::all_of(kept, isInSheet)) return applied(kept, headings);
  }
  return guessed;
}
