#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "saleslib/Export.h"

class ClsOperator;
class Connection;

/// Checks an operator's number and password. A wrong number and a wrong password take equally long
/// and read alike.
class TESSALY_API ClsLogin {
 public:
  void Conn(Connection& connection);
  /// Both exactly as typed; a refusal is noted in the journal. True when they belong to an
  /// operator, who is then in Operator().
  [[nodiscard]] bool Check(std::string_view number, std::string_view password);
  /// The operator of the last successful check, else none.
  std::shared_ptr<ClsOperator> Operator() const { return operator_; }
  /// The reason of the last refusal, worded for the cashier.
  const std::string& ErrText() const { return errText_; }

 private:
  void note(const std::string& number);

  Connection* connection_ = nullptr;
  std::shared_ptr<ClsOperator> operator_;
  std::string errText_;
};
