#include "tools/TakeOver.h"

#include <algorithm>
#include <utility>

#include "base/Words.h"
#include "saleslib/Journal.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/RowWriter.h"
#include "store/Transaction.h"
#include "tools/AccessValues.h"
#include "tools/TakeOverSums.h"

namespace {

constexpr std::int64_t kRowsPerProgress = 50000;
constexpr std::size_t kMostReasons = 20;  // as many as fit on one screen

// A second row with a key that the table has is passed over, and counts as not written.
std::string insertTextOf(const TargetTable& target) {
  std::string names, marks;
  for (std::size_t index = target.isRenumbered ? 1 : 0; index < target.columns.size(); ++index) {
    names += (names.empty() ? "" : ", ") + std::string(target.columns[index].name);
    marks += marks.empty() ? "?" : ", ?";
  }
  if (std::string_view(target.name) == "cardStored") {  // else each would be named as cut short
    names += ", complete";
    marks += ", 1";
  }
  return kInsertUnlessThere + std::string(target.name) + " (" + names + ") values (" + marks + ")";
}

std::int64_t wholeIn(const Value& value) {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole == nullptr ? 0 : *whole;
}

}  // namespace

TakeOver::TakeOver(Connection& connection, const AccessFile& file, const AccessPlan& plan,
                   Progress progress)
    : connection_(connection), file_(file), plan_(plan), progress_(std::move(progress)) {}

TakenOver TakeOver::run() {
  requireComplete(plan_);
  Transaction all(connection_);
  requireEmpty();
  for (const PlannedTable& table : plan_.tables) takeTable(table);
  if (strangers_ > 0) {
    done_.notes.push_back(
        Words::tr("%1 张单据的会员不在带来的会员里，单据上不再有会员。", strangers_));
  }
  for (const std::string& note :
       {sumUpBills(connection_, plan_), sumUpPurchases(connection_, plan_),
        beginStock(connection_, plan_), recordBalances(connection_), nameRounding(connection_),
        nameOperators(connection_)}) {
    if (!note.empty()) done_.notes.push_back(note);
  }
  updateFragmentIndex(connection_);
  if (const Journal journal(connection_); journal.isOn()) journal.begin();
  all.commit();
  return std::move(done_);
}

void TakeOver::requireEmpty() const {
  for (const PlannedTable& table : plan_.tables) {
    const std::string name = table.target.name;
    if (!connection_.query(("select 1 from " + name + " limit 1").c_str()).next()) continue;
    throw Refusal(
        Words::tr("什么也没有带来：数据文件的表 %1 里已经有数据。请用 tilladmin create "
                  "建一个新的数据文件，带到那里；不要这张表就加上 --skip %2。",
                  name, name));
  }
}

void TakeOver::takeTable(const PlannedTable& table) {
  done_.tables.push_back({table.source->name, table.target.name, 0, 0, 0, {}, {}});
  insertText_ = insertTextOf(table.target);
  std::int64_t rows = 0;
  file_.read(*table.source, [&](const AccessRow& row) {
    row_ = Words::tr("第 %1 行", ++rows);
    if (std::optional<Values> values = valuesOf(table, row)) takeRow(table, *std::move(values));
    if (rows % kRowsPerProgress == 0) progress_(table.source->name, rows);
  });
  if (table.target.isRenumbered) insertMembers();
}

std::optional<TakeOver::Values> TakeOver::valuesOf(const PlannedTable& table,
                                                   const AccessRow& row) {
  Values values;
  for (std::size_t index = 0; index < table.from.size(); ++index) {
    const TargetColumn& column = table.target.columns[index];
    const AccessValue none;
    const AccessValue& value = table.from[index] ? row[*table.from[index]] : none;
    if (index == 0 && !std::holds_alternative<std::monostate>(value)) {
      row_ += Words::tr("（%1）", shownValue(value));
    }
    std::optional<TakenValue> taken = takenValue(value, column.kind);
    if (!taken) {
      leave(Words::tr("%1 是%2，不是%3", column.name, shownValue(value), kindName(column.kind)));
      return std::nullopt;
    }
    if (std::holds_alternative<std::monostate>(taken->value)) {
      if (!column.empty) {
        leave(Words::tr("%1 空着", column.name));
        return std::nullopt;
      }
      taken->value = *column.empty;
    }
    if (!taken->change.empty()) change(std::string(column.name) + " " + taken->change);
    values.push_back(std::move(taken->value));
  }
  return values;
}

void TakeOver::takeRow(const PlannedTable& table, Values values) {
  if (const std::string refusal = refusalOf(table, values); !refusal.empty()) {
    leave(refusal);
  } else if (table.target.isRenumbered) {
    members_.push_back(std::move(values));
  } else {
    insert(std::move(values));
  }
}

/// Why a row that has all it must have is left out all the same; empty when it is taken.
std::string TakeOver::refusalOf(const PlannedTable& table, Values& values) {
  const std::string_view target = table.target.name;
  if (table.target.columns.front().kind == TargetColumn::Kind::kWhole &&
      !table.target.isRenumbered && wholeIn(values.front()) <= 0) {
    return Words::tr("号码不是大于 0 的整数");
  }
  if (target == "sell") return takeBill(table, values);
  if (target == "sellProducts" &&
      !connection_.queryBound("select 1 from sell where id = ?", {values[1]}).next()) {
    return Words::tr("单据 %1 没有带来", wholeIn(values[1]));
  }
  return "";
}

// An open bill is what a program that died left behind; here it would be voided at the first start.
std::string TakeOver::takeBill(const PlannedTable& table, Values& values) {
  const std::int64_t state = wholeIn(values[*table.target.indexOf("state")]);
  if (state != 1) return Words::tr("没有结账（state 是 %1），不带", state);
  Value& member = values[*table.target.indexOf("member_id")];
  if (wholeIn(member) == 0) return "";
  const auto known = memberNumbers_.find(wholeIn(member));
  if (known == memberNumbers_.end()) ++strangers_;
  member = toValue(known == memberNumbers_.end() ? std::int64_t{0} : known->second);
  return "";
}

void TakeOver::insert(Values values) {
  if (connection_.runBound(insertText_.c_str(), std::move(values)) == 0) {
    leave(Words::tr("主键与前面的一行相同"));
    return;
  }
  ++done_.tables.back().taken;
}

// Members are never deleted here, so that their numbers have no gap: those of the other file keep
// their order only, and the bills follow.
void TakeOver::insertMembers() {
  std::ranges::stable_sort(members_, {}, [](const Values& member) { return wholeIn(member[0]); });
  for (Values& member : members_) {
    const std::int64_t number = wholeIn(member.front());
    row_ = Words::tr("卡号 %1", std::get<std::string>(member[1]));
    member.erase(member.begin());
    const std::int64_t before = done_.tables.back().taken;
    insert(std::move(member));
    if (done_.tables.back().taken > before && number != 0) {
      memberNumbers_.emplace(number, done_.tables.back().taken);
    }
  }
  members_.clear();
}

void TakeOver::leave(const std::string& reason) {
  TakenTable& table = done_.tables.back();
  ++table.left;
  if (table.reasons.size() < kMostReasons)
    table.reasons.push_back(Words::tr("%1：%2", row_, reason));
}

void TakeOver::change(const std::string& what) {
  TakenTable& table = done_.tables.back();
  ++table.changed;
  if (table.changes.size() < kMostReasons) table.changes.push_back(Words::tr("%1：%2", row_, what));
}
