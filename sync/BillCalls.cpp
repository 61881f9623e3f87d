#include "sync/BillCalls.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/NumberText.h"

namespace {

using Json = nlohmann::json;

using AnswerRow = ServerAnswer::Row;

std::string textAt(const AnswerRow& row, std::size_t column) {
  return row.at(column).value_or("");
}

std::int64_t numberAt(const AnswerRow& row, std::size_t column) {
  return wholeAt(row, column).value_or(0);
}

double quantityAt(const AnswerRow& row, std::size_t column) {
  return parseNumber(textAt(row, column)).value_or(0);
}

/// The record that the till noted, each line with what it still holds.
std::string heldNow(const std::string& record, const std::string& holds) {
  Json bill = Json::parse(record);
  const Json left = Json::parse(holds);
  for (Json& line : bill.at("lines"))
    line["amount"] = left.value(line.at("id").get<std::string>(), "0");
  return bill.dump();
}

}  // namespace

ServerAnswer BillCalls::ask(const char* statement, AnswerRow values) {
  values.insert(values.begin(), calls_.till());
  return calls_.line().askWithin(patience_, statement, values);
}

BillAuthority::ReturnAnswer BillCalls::takeBack(const BillAuthority::Return& wanted) {
  const ServerAnswer answer = ask("select outcome, holds from api.return_line($1, $2, $3, $4, $5)",
                                  {wanted.key, std::to_string(wanted.bill),
                                   std::to_string(wanted.line), generalNumber(wanted.quantity)});
  if (!answer.isDone()) return {};
  const std::string outcome = textAt(answer.rows.at(0), 0);
  const double holds = quantityAt(answer.rows.at(0), 1);
  if (outcome == "done") return {Reply::kDone, holds};
  if (outcome == "too_much") return {Reply::kTooMuch, holds};
  if (outcome == "unknown_bill") return {Reply::kUnknown};
  return {};
}

BillAuthority::BillAnswer BillCalls::bill(std::int64_t number) {
  const ServerAnswer answer =
      ask("select record, holds from api.bill($1, $2)", {std::to_string(number)});
  if (!answer.isDone()) return {};
  const AnswerRow& row = answer.rows.at(0);
  if (!row.at(0) || !row.at(1)) return {Reply::kUnknown};
  try {
    return {Reply::kDone, heldNow(*row.at(0), *row.at(1))};
  } catch (const Json::exception&) {
    return {Reply::kUnknown};
  }
}

BillCalls::Held BillCalls::heldElsewhere() {
  const ServerAnswer answer = ask("select at_till, bill, basket from api.held_bills($1)");
  if (!answer.isDone()) return {};
  Held held{.reply = Reply::kDone};
  for (const AnswerRow& row : answer.rows)
    held.bills.push_back({static_cast<int>(numberAt(row, 0)), numberAt(row, 1), textAt(row, 2)});
  return held;
}

BillCalls::Wish BillCalls::want(const std::string& key, int till, std::int64_t bill) {
  const ServerAnswer answer = ask("select outcome, basket from api.want($1, $2, $3, $4)",
                                  {key, std::to_string(till), std::to_string(bill)});
  if (!answer.isDone()) return {};
  const std::string outcome = textAt(answer.rows.at(0), 0);
  if (outcome == "handed") return {Reply::kDone, false, textAt(answer.rows.at(0), 1)};
  if (outcome == "waiting") return {Reply::kDone, true};
  return {outcome == "away" ? Reply::kAway : Reply::kUnknown};
}

ServerAnswer BillCalls::hold(const std::string& baskets) {
  return ask("select api.hold($1, $2)", {baskets});
}

BillCalls::Errands BillCalls::errands() {
  const ServerAnswer answer = ask("select what, key, other, bill, basket from api.errands($1)");
  Errands errands{.isAnswered = answer.isDone()};
  if (!answer.isDone()) return errands;
  for (const AnswerRow& row : answer.rows)
    errands.all.push_back({textAt(row, 0) == "wanted", textAt(row, 1),
                           static_cast<int>(numberAt(row, 2)), numberAt(row, 3), textAt(row, 4)});
  return errands;
}

BillCalls::Returned BillCalls::returnedElsewhere() {
  const ServerAnswer answer =
      ask("select key, at_till, bill, line, quantity from api.returned_elsewhere($1)");
  Returned returned{.isAnswered = answer.isDone()};
  if (!answer.isDone()) return returned;
  for (const AnswerRow& row : answer.rows)
    returned.all.push_back({textAt(row, 0), static_cast<int>(numberAt(row, 1)), numberAt(row, 2),
                            numberAt(row, 3), quantityAt(row, 4)});
  return returned;
}
