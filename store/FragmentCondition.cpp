#include "store/FragmentCondition.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "store/FragmentColumn.h"

namespace {

template <std::size_t kCount>
bool isOneOf(const std::array<std::string_view, kCount>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

constexpr std::array<std::string_view, 3> kBeforeTable = {"from", "join", "update"};
constexpr std::array<std::string_view, 12> kAfterTable = {"where", "inner", "left",  "cross",
                                                          "join",  "on",    "set",   "order",
                                                          "group", "limit", "union", "natural"};
// Behind "case" an "and" need not join conditions; the others end them.
constexpr std::array<std::string_view, 9> kEndOfConditions = {
    "case", "group", "order", "limit", "having", "union", "except", "intersect", "select"};
constexpr std::array<std::string_view, 5> kAfterCondition = {"and", "or", "order", "group",
                                                             "limit"};

std::string firstWord(std::string_view text) {
  const auto isLetter = [](char sign) {
    return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z');
  };
  const auto end = std::find_if_not(text.begin(), text.end(), isLetter);
  return asciiLower(text.substr(0, static_cast<std::size_t>(end - text.begin())));
}

}  // namespace

void FragmentCondition::word(std::string_view word) {
  std::string lower = asciiLower(word);
  if (!table_.empty() && isOneOf(kAfterTable, lower)) tables_.push_back(table_);
  table_.clear();
  if (isOneOf(kBeforeTable, lastWord_) && hasFragmentIndex(lower)) table_ = lower;
  if (lower == "select") ++selects_;
  if (lower == "join") joins_ = true;
  place_ = placeAfter(lower);
  lastWord_ = std::move(lower);
}

FragmentCondition::Place FragmentCondition::placeAfter(const std::string& word) {
  if (word == "where") {
    conditionDepth_ = depth_;
    betweenOpen_ = false;
    return Place::kStart;
  }
  if (depth_ != conditionDepth_) return Place::kElsewhere;
  if (isOneOf(kEndOfConditions, word)) conditionDepth_ = kNone;
  if (word == "between") betweenOpen_ = true;
  if (word == "or") return Place::kStart;
  if (word == "and") {
    return std::exchange(betweenOpen_, false) ? Place::kElsewhere : Place::kStart;
  }
  if (place_ == Place::kName && word == "like") return Place::kLike;
  if (place_ != Place::kStart && place_ != Place::kDot) return Place::kElsewhere;
  qualifier_ = place_ == Place::kDot ? name_ : "";
  name_ = word;
  return Place::kName;
}

void FragmentCondition::sign(char sign) {
  table_.clear();
  lastWord_.clear();
  if (sign == '(') ++depth_;
  if (sign == ')' && --depth_ < conditionDepth_) conditionDepth_ = kNone;
  const bool qualifies = sign == '.' && place_ == Place::kName && qualifier_.empty();
  place_ = qualifies ? Place::kDot : Place::kElsewhere;
}

void FragmentCondition::valueOrQuotedName() {
  table_.clear();
  lastWord_.clear();
  place_ = Place::kElsewhere;
}

const FragmentColumn* FragmentCondition::at(std::string_view after) const {
  if (place_ != Place::kLike || selects_ > 1) return nullptr;
  const FragmentColumn* column = fragmentColumn(name_);
  if (column == nullptr || !isInScope(column->table)) return nullptr;
  if (!qualifier_.empty() && qualifier_ != column->table) return nullptr;
  const std::string rest = trimmed(after);
  const bool ends = rest.empty() || rest.front() == ';' || rest.front() == ')';
  return ends || isOneOf(kAfterCondition, firstWord(rest)) ? column : nullptr;
}

bool FragmentCondition::isInScope(std::string_view table) const {
  return std::find(tables_.begin(), tables_.end(), table) != tables_.end();
}

// Among sale lines the goods are found by their code. A condition on the row's id would be tried
// once for each candidate there; one on the code goes over to the lines' own code, so that a line
// of other goods is passed over without reading its goods (500,000 lines: 0.9 s instead of 12 s).
std::string FragmentCondition::added(const FragmentColumn& column) const {
  const std::string table(column.table), key(column.key);
  const std::string found = "id in (select docid from " + table + "_fragments where " +
                            std::string(column.column) + " match ? union all select id from " +
                            table + "_written)";
  if (!joins_) return "and " + table + "." + found + " ";
  return "and " + table + "." + key + " in (select " + key + " from " + table + " where " + found +
         ") ";
}
