#include "shop/Operators.h"

#include <set>

#include "base/Text.h"
#include "saleslib/ClsRights.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kLongestName = 255;

void addRight(Connection& connection, std::int16_t number, const std::string& right) {
  connection.run("insert into operator_rights (operator_id, right_key) values (?, ?)", number,
                 right);
}

std::string labelled(std::int16_t number) {
  return "操作员 " + std::to_string(number);
}

}  // namespace

const std::vector<std::string>& operatorRights() {
  static const std::vector<std::string> rights = {kRightSell, kRightReport};
  return rights;
}

std::string refusalOfName(const std::string& name) {
  const std::string shown = trimmed(name);
  if (!shown.empty() && characters(shown) <= kLongestName) return {};
  return "操作员的姓名不能空着，也不能超过 255 个字。";
}

void addOperator(Connection& connection, const NewOperator& wanted) {
  const std::string refusal = refusalOfName(wanted.name);
  if (!refusal.empty()) throw Refusal(refusal);
  const std::string name = trimmed(wanted.name);
  Transaction transaction(connection);
  ClsOperator person;
  person.Init(connection, wanted.number);
  if (person.Found()) throw Refusal("已经有" + labelled(wanted.number) + "：" + person.Name());
  person.setName(name);
  person.setCode(std::to_string(wanted.number));
  person.setPassword(wanted.password);
  person.Save();
  // What an operator of that number once had is not inherited.
  connection.run("delete from operator_rights where operator_id = ?", wanted.number);
  for (const std::string& right : std::set(wanted.rights.begin(), wanted.rights.end())) {
    addRight(connection, wanted.number, right);
  }
  transaction.commit();
}

ClsOperator existingOperator(Connection& connection, std::int16_t number) {
  ClsOperator person;
  person.Init(connection, number);
  if (!person.Found()) throw Refusal("没有" + labelled(number) + "。");
  return person;
}

void changeRights(Connection& connection, std::int16_t number,
                  const std::vector<std::string>& given, const std::vector<std::string>& taken) {
  Transaction transaction(connection);
  static_cast<void>(existingOperator(connection, number));
  std::set<std::string> changed(given.begin(), given.end());
  changed.insert(taken.begin(), taken.end());
  for (const std::string& right : changed) {  // rights are kept in either case of letters
    connection.run("delete from operator_rights where operator_id = ? and lower(right_key) = ?",
                   number, right);
  }
  for (const std::string& right : taken) changed.erase(right);
  for (const std::string& right : changed) addRight(connection, number, right);
  transaction.commit();
}

void removeOperator(Connection& connection, std::int16_t number) {
  Transaction transaction(connection);
  if (connection.query("select id from sell where operator_id = ? and state = 0", number).next()) {
    throw Refusal(labelled(number) + "还有没结的单据，先让本人在收银台处理完，再删除。");
  }
  connection.run("delete from operator_rights where operator_id = ?", number);
  connection.run("delete from operators where id = ?", number);
  transaction.commit();
}
