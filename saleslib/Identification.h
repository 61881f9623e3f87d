#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "saleslib/Export.h"

class ClsOperator;
class ClsSysParam;
class Connection;
class LoginBrake;

/// Who somebody at the till is: by number and password, or by a staff card. Where the shop asks for
/// approvals (parameter Approval), wrong attempts of either kind are slowed down. A till of a shop
/// with a server that was not heard of for too long lets nobody in (parameter OfflineLoginDays).
class TESSALY_API Identification {
 public:
  /// All of them outlive it.
  Identification(Connection& connection, const ClsSysParam& rules, LoginBrake& brake)
      : connection_(connection), rules_(rules), brake_(brake) {}

  struct Answer {
    std::shared_ptr<ClsOperator> person = {};  ///< none: refused
    std::string refusal = {};                  ///< worded for the cashier, unless there is a wait
    std::chrono::seconds wait{0};              ///< how long nothing is looked at
  };
  /// Both exactly as typed. Throws StoreError.
  [[nodiscard]] Answer byPassword(std::string_view number, std::string_view password);
  /// A text that isSwipe. Throws StoreError.
  [[nodiscard]] Answer bySwipe(std::string_view typed);

 private:
  std::string tooLongAway() const;
  template <class Find>
  Answer answer(const Find& find);

  Connection& connection_;
  const ClsSysParam& rules_;
  LoginBrake& brake_;
};
