#include "tools/AccessPlan.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"

namespace {

/// "OLD_TABLE.OLD_COLUMN=NEW"; no column where whole tables are meant.
struct Mapping {
  std::string text, table, column, target;
};

Mapping mappingOf(const std::string& text) {
  const std::size_t equals = text.rfind('=');
  if (equals == std::string::npos || equals == 0 || equals + 1 == text.size()) {
    throw Refusal(Words::tr("--map 要写成 旧表=新表，或者 旧表.旧列=新列：%1", text));
  }
  Mapping mapping{text, text.substr(0, equals), "", text.substr(equals + 1)};
  if (const std::size_t dot = mapping.table.find('.'); dot != std::string::npos) {
    mapping.column = mapping.table.substr(dot + 1);
    mapping.table.resize(dot);
  }
  return mapping;
}

/// The place of the first whose name is that one.
template <class Range>
std::optional<std::size_t> placeOf(const Range& range, std::string_view name) {
  const auto found = std::ranges::find_if(
      range, [name](const auto& each) { return equalIgnoringCase(each.name, name); });
  if (found == std::ranges::end(range)) return std::nullopt;
  return static_cast<std::size_t>(found - std::ranges::begin(range));
}

template <class Range>
std::size_t requiredPlace(const Range& range, const std::string& name, const std::string& what) {
  if (const auto place = placeOf(range, name)) return *place;
  std::string names;
  for (const auto& each : range)
    names += (names.empty() ? "" : Words::tr("、")) + std::string(each.name);
  throw Refusal(Words::tr("%1没有“%2”。可以写的：%3。", what, name, names));
}

class Planner {
 public:
  Planner(const AccessFile& file, const AccessChoices& choices, const DateTime& now);
  AccessPlan plan();

 private:
  /// For each table of ours, one of the file's.
  using Pairs = std::vector<std::optional<std::size_t>>;

  Pairs pairs() const;
  PlannedTable together(const AccessTable& source, const TargetTable& target) const;
  static void fillByName(PlannedTable& table, const std::vector<bool>& isMapped);

  const std::vector<AccessTable>& sources_;
  std::vector<TargetTable> targets_;
  std::vector<Mapping> maps_;
  std::vector<std::string> skips_;
};

Planner::Planner(const AccessFile& file, const AccessChoices& choices, const DateTime& now)
    : sources_(file.tables()), targets_(targetTables(now)), skips_(choices.skips) {
  std::ranges::transform(choices.maps, std::back_inserter(maps_), mappingOf);
  for (const Mapping& map : maps_)
    requiredPlace(sources_, map.table, Words::tr("Access 文件里的表"));
  for (const std::string& skip : skips_) requiredPlace(targets_, skip, Words::tr("可以带来的表"));
}

Planner::Pairs Planner::pairs() const {
  Pairs pairs(targets_.size());
  std::vector<bool> isMapped(sources_.size());
  for (const Mapping& map : maps_) {
    if (!map.column.empty()) continue;
    const std::size_t source = requiredPlace(sources_, map.table, Words::tr("Access 文件里的表"));
    auto& pair = pairs[requiredPlace(targets_, map.target, Words::tr("可以带来的表"))];
    if (pair || isMapped[source])
      throw Refusal(Words::tr("--map %1 与前面的 --map 冲突。", map.text));
    pair = source;
    isMapped[source] = true;
  }
  for (std::size_t target = 0; target < targets_.size(); ++target) {
    const auto source = placeOf(sources_, targets_[target].name);
    if (!pairs[target] && source && !isMapped[*source]) pairs[target] = source;
  }
  for (const std::string& skip : skips_) pairs[*placeOf(targets_, skip)].reset();
  return pairs;
}

AccessPlan Planner::plan() {
  AccessPlan plan;
  const Pairs pairs = this->pairs();
  for (std::size_t target = 0; target < targets_.size(); ++target) {
    if (!pairs[target] || sources_[*pairs[target]].isLinked) continue;
    plan.tables.push_back(together(sources_[*pairs[target]], targets_[target]));
  }
  for (const AccessTable& source : sources_) {
    if (plan.source(source) == nullptr) plan.left.push_back(&source);
  }
  for (const Mapping& map : maps_) {
    if (map.column.empty() || plan.source(sources_[*placeOf(sources_, map.table)]) != nullptr) {
      continue;
    }
    throw Refusal(Words::tr("--map %1：表 %2 不带来，先用 --map %3=新表 指出它是哪张表。", map.text,
                            map.table, map.table));
  }
  return plan;
}

PlannedTable Planner::together(const AccessTable& source, const TargetTable& target) const {
  PlannedTable table{&source, target, {}};
  table.from.resize(target.columns.size());
  std::vector<bool> isMapped(source.columns.size());
  for (const Mapping& map : maps_) {
    if (map.column.empty() || !equalIgnoringCase(map.table, source.name)) continue;
    const std::size_t column =
        requiredPlace(source.columns, map.column, Words::tr("表 %1 里的列", source.name));
    auto& from = table.from[requiredPlace(target.columns, map.target,
                                          Words::tr("表 %1 里的列", target.name))];
    if (from || isMapped[column])
      throw Refusal(Words::tr("--map %1 与前面的 --map 冲突。", map.text));
    if (!source.columns[column].isReadable) {
      throw Refusal(Words::tr("--map %1：%2的列带不过来。", map.text, source.columns[column].type));
    }
    from = column;
    isMapped[column] = true;
  }
  fillByName(table, isMapped);
  return table;
}

void Planner::fillByName(PlannedTable& table, const std::vector<bool>& isMapped) {
  for (std::size_t index = 0; index < table.from.size(); ++index) {
    if (table.from[index]) continue;
    const auto column = placeOf(table.source->columns, table.target.columns[index].name);
    if (column && !isMapped[*column] && table.source->columns[*column].isReadable) {
      table.from[index] = column;
    }
  }
}

}  // namespace

const TargetColumn* PlannedTable::targetOf(std::size_t column) const {
  const auto found = std::ranges::find(from, std::optional(column));
  return found == from.end() ? nullptr
                             : &target.columns[static_cast<std::size_t>(found - from.begin())];
}

bool PlannedTable::has(std::string_view column) const {
  const auto index = target.indexOf(column);
  return index && from[*index];
}

std::vector<std::string> PlannedTable::lacking() const {
  std::vector<std::string> names;
  for (std::size_t index = 0; index < from.size(); ++index) {
    if (!from[index] && !target.columns[index].empty)
      names.emplace_back(target.columns[index].name);
  }
  return names;
}

const PlannedTable* AccessPlan::target(std::string_view name) const {
  const auto found = std::ranges::find_if(
      tables, [name](const PlannedTable& table) { return table.target.name == name; });
  return found == tables.end() ? nullptr : &*found;
}

const PlannedTable* AccessPlan::source(const AccessTable& table) const {
  const auto found = std::ranges::find(tables, &table, &PlannedTable::source);
  return found == tables.end() ? nullptr : &*found;
}

AccessPlan planned(const AccessFile& file, const AccessChoices& choices, const DateTime& now) {
  return Planner(file, choices, now).plan();
}

void requireComplete(const AccessPlan& plan) {
  if (plan.tables.empty()) {
    throw Refusal(Words::tr(
        "Access 文件里没有可以带来的表。用 --list 看它有哪些表，用 --map 旧表=新表 指出。"));
  }
  for (const PlannedTable& table : plan.tables) {
    const std::vector<std::string> lacking = table.lacking();
    if (lacking.empty()) continue;
    const std::string& old = table.source->name;
    throw Refusal(
        Words::tr("什么也没有带来：表 %1 里没有 %2 这一列。用 --list 看它有哪些列，用 --map "
                  "%3.旧列=%4 指出；不要这张表就加上 --skip %5。",
                  old, lacking.front(), old, lacking.front(), table.target.name));
  }
}
