#include "saleslib/ClsOperator.h"

#include <nlohmann/json.hpp>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "saleslib/PasswordHash.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

ClsRights storedRights(Connection& connection, std::int16_t id) {
  std::set<std::string> keys;
  Rows rows = connection.query("select right_key from operator_rights where operator_id = ?", id);
  while (rows.next()) keys.insert(rows.text("right_key"));
  return ClsRights(keys);
}

}  // namespace

void ClsOperator::Init(Connection& connection, std::int16_t id) {
  *this = ClsOperator();
  connection_ = &connection;
  id_ = id;
  Rows rows = connection.query("select name, code, online from operators where id = ?", id);
  found_ = rows.next();
  if (!found_) return;
  name_ = rows.text("name");
  code_ = rows.text("code");
  online_ = static_cast<std::int16_t>(rows.whole("online").value_or(0));
  rights_ = storedRights(connection, id);
}

void ClsOperator::Save() {
  ensure(connection_ != nullptr, "an operator is bound before it is stored");
  Transaction transaction(*connection_);
  if (found_) {
    update();
  } else {
    insert();
  }
  if (newRights_) storeRights();
  if (!found_ || edited_ || newRights_) {
    const EntryKind kind = found_ ? EntryKind::kOperatorChanged : EntryKind::kOperatorAdded;
    Journal(*connection_).note(kind, id_, [this] {
      nlohmann::json body = {{"operator", operatorRecord(*connection_, id_)}};
      if (newPasswordHash_ && shopLink(*connection_)) body["secret"] = *newPasswordHash_;
      return body;
    });
  }
  transaction.commit();
  found_ = true;
}

void ClsOperator::insert() {
  ensure(newPasswordHash_.has_value(), "a new operator has a password");
  connection_->run(
      "insert into operators (id, name, code, password, online) values (?, ?, ?, ?, ?)", id_, name_,
      code_, *newPasswordHash_, online_);
}

void ClsOperator::update() {
  const std::int64_t changed = connection_->run(
      "update operators set name = ?, code = ?, online = ?, password = coalesce(?, password)"
      " where id = ?",
      name_, code_, online_, newPasswordHash_, id_);
  if (changed == 0) throw StoreError(Words::tr("操作员 %1 已被删除，没有保存！", id_));
}

void ClsOperator::storeRights() {
  connection_->run("delete from operator_rights where operator_id = ?", id_);
  for (const std::string& key : rights_.Keys()) {
    connection_->run("insert into operator_rights (operator_id, right_key) values (?, ?)", id_,
                     key);
  }
}

void ClsOperator::setPassword(std::string_view password) {
  newPasswordHash_ = passwordHash(password);
  edited_ = true;
}
