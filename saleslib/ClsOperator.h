#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "saleslib/ClsRights.h"
#include "saleslib/Export.h"

class Connection;

/// One operator (cashier). Passwords are kept as salted hashes only.
class TESSALY_API ClsOperator {
 public:
  /// Binds and loads the operator with that number. An unknown number leaves an operator with that
  /// Id, no name and no rights, whom Save adds; Found() tells.
  void Init(Connection& connection, std::int16_t id);
  bool Found() const { return found_; }

  /// Stores the record in one transaction, a new password and new rights included. A new operator
  /// has been given a password (ensure). Throws StoreError, also when the operator was removed
  /// meanwhile.
  void Save();

  /// The identifier printed on receipts after "收银员：".
  const std::string& Code() const { return code_; }
  void setCode(std::string code) {
    code_ = std::move(code);
    edited_ = true;
  }
  /// The operator's new password; stored by Save. May be empty.
  void setPassword(std::string_view password);
  const std::string& Name() const { return name_; }
  void setName(std::string name) {
    name_ = std::move(name);
    edited_ = true;
  }
  std::int16_t Id() const { return id_; }
  const ClsRights& Rights() const { return rights_; }
  void setRights(ClsRights rights) {
    rights_ = std::move(rights);
    newRights_ = true;
  }
  void setOnline(std::int16_t online) { online_ = online; }

 private:
  void insert();
  void update();
  void storeRights();

  Connection* connection_ = nullptr;
  bool found_ = false;
  std::int16_t id_ = 0;
  std::string code_;
  std::string name_;
  std::int16_t online_ = 0;
  std::optional<std::string> newPasswordHash_;
  ClsRights rights_;
  bool newRights_ = false, edited_ = false;
};
