#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"

class Connection;
class Row;

/// One member and the stored-value card that goes with the member's number.
class ClsMember {
 public:
  /// Binds; id 0 starts a new, empty member, otherwise loads that member (an unknown id leaves an
  /// empty one, Id() 0).
  void Init(Connection& connection, std::int32_t id, Clock clock = localTime);
  /// From a row of the member table.
  static ClsMember fromRow(Connection& connection, const Row& row);

  /// Inserts a new member or updates a loaded one. False on a refusal or a failed store, the reason
  /// in ErrText (no number, no name, number taken). A loaded member's balance and card password are
  /// only written when they were set, and the rest as loaded or set since.
  [[nodiscard]] bool Save();
  /// As Save, for a loaded member only.
  [[nodiscard]] bool Update();

  std::int32_t Id() const;
  const std::string& Bh() const;  ///< member and card number
  void setBh(std::string bh);
  const std::string& Name() const;
  void setName(std::string name);
  const std::string& Sex() const;  ///< "男" or "女"
  void setSex(std::string sex);
  std::int16_t Age() const;
  void setAge(std::int16_t age);
  const std::string& Phone() const;
  void setPhone(std::string phone);
  const std::string& ErrText() const;
  std::int16_t Points() const;
  void setPoints(std::int16_t points);
  Date JoinDate() const;
  const std::string& Other() const;  ///< remark
  void setOther(std::string other);
  const std::string& Address() const;
  void setAddress(std::string address);
  bool Enabled() const;  ///< card usable
  void setEnabled(bool enabled);
  Currency TotalSpent() const;
  void setTotalSpent(Currency total);
  double Discount() const;  ///< factor; 1 when the record has none
  void setDiscount(double factor);
  void setBirthday(const Date& birthday);
  void setBalance(Currency balance);
  void setPassword(std::string password);

 private:
  bool store(bool insert);

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t id_ = 0;
  std::string bh_, name_, sex_ = "男", phone_, other_, address_, errText_;
  std::int16_t age_ = 0, points_ = 0;
  DateTime joined_;
  bool enabled_ = true;
  Currency totalSpent_;
  std::optional<double> discount_;
  std::optional<Date> birthday_;
  std::optional<Currency> newBalance_;
  std::optional<std::string> newPassword_;
};
