#include "shop/Operators.h"

#include <map>
#include <optional>
#include <set>

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/ClsRights.h"
#include "saleslib/Journal.h"
#include "saleslib/Right.h"
#include "saleslib/StaffCard.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kLongestName = 255;

std::string labelled(std::int16_t number) {
  return Words::tr("操作员 %1", number);
}

}  // namespace

std::string refusalOfRight(const std::string& text) {
  if (parseRight(text) || equalIgnoringCase(text, kEveryRight)) return {};
  std::string keys;
  for (const std::string& key : allRights())
    keys.append(keys.empty() ? "" : Words::tr("、")).append(key);
  return Words::tr(
      "只能是 %1、%2（全部）；discount、return 后面可以写上限（discount:10）。写的是“%3”", keys,
      kEveryRight, text);
}

std::string rightsForPeople() {
  std::string all;
  for (const RightKind& kind : rightKinds()) {
    const char* text = kind.limit == RightKind::Limit::kPercent
                           ? Words::mark("%1（%2，可以写最多百分之几：%1:10）")
                       : kind.limit == RightKind::Limit::kYuan
                           ? Words::mark("%1（%2，可以写最多多少元：%1:200）")
                           : Words::mark("%1（%2）");
    all.append(all.empty() ? "" : Words::tr("、"))
        .append(Words::tr(text, kind.key, Words::tr(kind.word)));
  }
  return Words::tr("%1，或者 %2（全部）", all, kEveryRight);
}

std::vector<std::string> rightsMeant(const std::vector<std::string>& named) {
  std::map<Right, std::string> meant;
  for (const std::string& text : named) {
    const bool isEvery = equalIgnoringCase(text, kEveryRight);
    for (const std::string& each : isEvery ? allRights() : std::vector{text}) {
      const std::optional<HeldRight> right = parseRight(each);
      ensure(right.has_value(), "a named right is one");
      meant[right->right] = rightText(*right);
    }
  }
  std::vector<std::string> texts;
  texts.reserve(meant.size());
  for (const auto& [right, text] : meant) texts.push_back(text);
  return texts;
}

std::vector<std::string> shownRights(const ClsRights& rights) {
  std::vector<std::string> shown;
  for (const RightKind& kind : rightKinds()) {
    if (rights.HasRight(kind.key))
      shown.push_back(rightText({kind.right, rights.Limit(kind.right)}));
  }
  return shown;
}

std::string refusalOfName(const std::string& name) {
  const std::string shown = trimmed(name);
  if (!shown.empty() && characters(shown) <= kLongestName) return {};
  return Words::tr("操作员的姓名不能空着，也不能超过 255 个字。");
}

void addOperator(Connection& connection, const NewOperator& wanted) {
  const std::string refusal = refusalOfName(wanted.name);
  if (!refusal.empty()) throw Refusal(refusal);
  const std::string name = trimmed(wanted.name);
  Transaction transaction(connection);
  ClsOperator person;
  person.Init(connection, wanted.number);
  if (person.Found())
    throw Refusal(Words::tr("已经有%1：%2", labelled(wanted.number), person.Name()));
  person.setName(name);
  person.setCode(std::to_string(wanted.number));
  person.setPassword(wanted.password);
  // What an operator of that number once had is not inherited.
  takeStaffCard(connection, wanted.number);
  person.setRights(ClsRights({wanted.rights.begin(), wanted.rights.end()}));
  person.Save();
  transaction.commit();
}

ClsOperator existingOperator(Connection& connection, std::int16_t number) {
  ClsOperator person;
  person.Init(connection, number);
  if (!person.Found()) throw Refusal(Words::tr("没有%1。", labelled(number)));
  return person;
}

void changeRights(Connection& connection, std::int16_t number,
                  const std::vector<std::string>& given, const std::vector<std::string>& taken) {
  Transaction transaction(connection);
  ClsOperator person = existingOperator(connection, number);
  std::vector<std::string> named = shownRights(person.Rights());
  named.insert(named.end(), given.begin(), given.end());
  std::set<Right> lost;
  for (const std::string& text : rightsMeant(taken)) lost.insert(parseRight(text)->right);
  std::set<std::string> held;
  for (const std::string& text : rightsMeant(named))
    if (!lost.contains(parseRight(text)->right)) held.insert(text);
  person.setRights(ClsRights(held));
  person.Save();
  transaction.commit();
}

void removeOperator(Connection& connection, std::int16_t number) {
  Transaction transaction(connection);
  if (connection.query("select id from sell where operator_id = ? and state = 0", number).next()) {
    throw Refusal(
        Words::tr("%1还有没结的单据，先让本人在收银台处理完，再删除。", labelled(number)));
  }
  connection.run("delete from operator_rights where operator_id = ?", number);
  takeStaffCard(connection, number);
  connection.run("delete from operators where id = ?", number);
  Journal(connection).note(EntryKind::kOperatorRemoved, std::to_string(number));
  transaction.commit();
}
