#include "saleslib/SharedReturn.h"

#include <nlohmann/json.hpp>
#include <vector>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/Journal.h"
#include "saleslib/Sodium.h"
#include "store/Connection.h"
#include "store/Transaction.h"

using Reply = BillAuthority::Reply;

namespace {

void forget(Connection& connection, const std::string& key) {
  ensure(connection.run("delete from return_pending where key = ?", key) == 1,
         "a return is stored or given up once");
}

}  // namespace

// A bill that the server does not have yet is nobody else's affair.
bool SharedReturn::needsNoAnswer() const {
  if (!isOwn_) return false;
  if (mayGoUnanswered_) return true;
  return connection_
      .query(
          "select 1 from fact where seq > ? and touches = ?"
          " and kind in ('bill_settled', 'bill_completed')",
          shop_.atServer(), std::to_string(wanted_.bill))
      .next();
}

BillAuthority::ReturnAnswer SharedReturn::ask(std::int64_t bill, std::int64_t line,
                                              double quantity) {
  ensure(!connection_.inTransaction(), "a question is durable before it goes out");
  wanted_ = {.key = randomDigits(16), .bill = bill, .line = line, .quantity = quantity};
  const bool isAway = shop_.isAway();
  if (isAway && !needsNoAnswer()) return {};
  Transaction preparing(connection_);
  connection_.run(
      "insert into return_pending (key, sell_id, item_id, quantity) values (?, ?, ?, ?)",
      wanted_.key, wanted_.bill, wanted_.line, wanted_.quantity);
  preparing.commit();
  BillAuthority::ReturnAnswer answer;
  if (!isAway) answer = shop_.takeBack(wanted_);
  if (answer.reply == Reply::kNone && needsNoAnswer()) answer.reply = Reply::kDone;
  if (answer.reply == Reply::kNone) {
    giveUp();
  } else if (answer.reply != Reply::kDone) {
    Transaction refusing(connection_);
    forget(connection_, wanted_.key);
    refusing.commit();
  }
  return answer;
}

void SharedReturn::take() {
  ensure(connection_.inTransaction(), "the key goes with the return");
  forget(connection_, wanted_.key);
}

void SharedReturn::giveUp() {
  giveUp(connection_, wanted_);
}

void SharedReturn::giveUp(Connection& connection, const BillAuthority::Return& wanted) {
  Transaction givingUp(connection);
  Journal(connection).note(EntryKind::kReturnVoided, wanted.bill, [&] {
    return nlohmann::json{{"back",
                           {{"key", wanted.key},
                            {"bill", std::to_string(wanted.bill)},
                            {"line", std::to_string(wanted.line)},
                            {"quantity", generalNumber(wanted.quantity)}}}};
  });
  forget(connection, wanted.key);
  givingUp.commit();
}

// Only one program sells on a data file: what is there is nobody's any more.
void SharedReturn::giveUpUnfinished(Connection& connection) {
  std::vector<BillAuthority::Return> left;
  for (Rows rows = connection.query("select * from return_pending"); rows.next();) {
    left.push_back({rows.text("key"), rows.whole("sell_id").value_or(0),
                    rows.whole("item_id").value_or(0), rows.number("quantity").value_or(0)});
  }
  for (const BillAuthority::Return& wanted : left) giveUp(connection, wanted);
}
