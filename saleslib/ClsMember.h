#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/Text.h"
#include "base/WriteMark.h"
#include "saleslib/Export.h"

class Connection;
class Row;

/// One member and the stored-value card that goes with the member's number.
class TESSALY_API ClsMember {
 public:
  /// Binds; id 0 starts a new, empty member, otherwise loads that member (an unknown id leaves an
  /// empty one, Id() 0).
  void Init(Connection& connection, std::int32_t id, Clock clock = localTime);
  /// From a row of the member table.
  static ClsMember fromRow(Connection& connection, const Row& row);

  /// Inserts a new member or updates a loaded one. False on a refusal or a failed store, the reason
  /// in ErrText: no number or name, number taken, a text of more than 100 characters or with
  /// control characters, a negative age, balance or discount. A loaded member's personal data are
  /// only judged when they were set: points and purchases of an old record with flaws can still be
  /// kept. A loaded member's balance, card password, birthday, purchases and points are only
  /// written when they were set: sales go on changing them.
  [[nodiscard]] bool Save();
  /// As Save, for a loaded member only.
  [[nodiscard]] bool Update();

  std::int32_t Id() const;
  const std::string& Bh() const { return bh_; }                ///< member and card number
  void setBh(std::string_view bh) { edit(bh_, trimmed(bh)); }  ///< kept without blanks around
  const std::string& Name() const { return name_; }
  void setName(std::string_view name) {
    edit(name_, trimmed(name));
  }                                                ///< kept without blanks around
  const std::string& Sex() const { return sex_; }  ///< "男" or "女"
  void setSex(std::string sex) { edit(sex_, std::move(sex)); }
  std::int16_t Age() const { return age_; }
  void setAge(std::int16_t age) { edit(age_, age); }
  const std::string& Phone() const { return phone_; }
  void setPhone(std::string_view phone) {
    edit(phone_, trimmed(phone));
  }  ///< kept without blanks around
  const std::string& ErrText() const { return errText_; }
  std::int16_t Points() const { return points_; }
  void setPoints(std::int16_t points) {
    points_ = points;
    newPoints_ = {points};
  }
  Date JoinDate() const { return joined_.date; }
  const std::string& Other() const { return other_; }  ///< remark
  void setOther(std::string other) { edit(other_, std::move(other)); }
  const std::string& Address() const { return address_; }
  void setAddress(std::string address) { edit(address_, std::move(address)); }
  bool Enabled() const { return enabled_; }  ///< card usable
  void setEnabled(bool enabled) { enabled_ = enabled; }
  Currency TotalSpent() const { return totalSpent_; }
  void setTotalSpent(Currency total) {
    totalSpent_ = total;
    newTotal_ = {total};
  }
  double Discount() const {
    return discount_.value_or(1.0);
  }  ///< factor; 1 when the record has none
  void setDiscount(double factor) { edit(discount_, factor); }
  void setBirthday(const Date& birthday) { edit(birthday_, {DateTime{birthday}}); }
  void setBalance(Currency balance) { edit(balance_, {balance}); }
  void setPassword(std::string password) { edit(password_, {std::move(password)}); }

 private:
  /// What is written only when it was set: once, again only when that write was taken back.
  template <class T>
  struct WriteOnly {
    std::optional<T> value;
    WriteMark written = kNotWritten;

    std::optional<T> unwritten(const Connection& connection) const;
    void markWritten(Connection& connection);
  };

  std::string refusal() const;
  std::string refusedText() const;
  void insert();
  void update();
  template <class T>
  void edit(T& member, std::type_identity_t<T> value) {
    member = std::move(value);
    edited_ = true;
  }

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t id_ = 0;
  WriteMark inserted_ = kNotWritten;
  bool edited_ = false;
  // untranslated: as it is stored
  std::string bh_, name_, sex_ = "男", phone_, other_, address_, errText_;
  std::int16_t age_ = 0, points_ = 0;
  DateTime joined_;
  bool enabled_ = true;
  Currency totalSpent_;
  std::optional<double> discount_;
  WriteOnly<DateTime> birthday_;
  WriteOnly<Currency> balance_;
  WriteOnly<Currency> newTotal_;
  WriteOnly<int> newPoints_;
  WriteOnly<std::string> password_;
};
