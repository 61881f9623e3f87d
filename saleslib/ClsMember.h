#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "store/WriteMarks.h"

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
  /// in ErrText: no number or name, number taken, a text of more than 100 characters or with
  /// control characters, a negative age, balance or discount. A loaded member's personal data are
  /// only judged when they were set: points and purchases of an old record with flaws can still be
  /// kept. A loaded member's balance, card password and birthday are only written when they were
  /// set.
  [[nodiscard]] bool Save();
  /// As Save, for a loaded member only.
  [[nodiscard]] bool Update();

  std::int32_t Id() const;
  const std::string& Bh() const;  ///< member and card number
  void setBh(std::string bh);     ///< kept without blanks around
  const std::string& Name() const;
  void setName(std::string name);  ///< kept without blanks around
  const std::string& Sex() const;  ///< "男" or "女"
  void setSex(std::string sex);
  std::int16_t Age() const;
  void setAge(std::int16_t age);
  const std::string& Phone() const;
  void setPhone(std::string phone);  ///< kept without blanks around
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
  /// What the program sets but never reads: written once, again only when that write was taken
  /// back.
  template <class T>
  struct WriteOnly {
    std::optional<T> value;
    WriteMark written = kNotWritten;

    void set(T newValue);
    std::optional<T> unwritten(const Connection& connection) const;
  };

  std::string refusal() const;
  std::string refusedText() const;
  void insert();
  void update();
  template <class T>
  void edit(T& member, T value);

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t id_ = 0;
  WriteMark inserted_ = kNotWritten;
  bool edited_ = false;
  std::string bh_, name_, sex_ = "男", phone_, other_, address_, errText_;
  std::int16_t age_ = 0, points_ = 0;
  DateTime joined_;
  bool enabled_ = true;
  Currency totalSpent_;
  std::optional<double> discount_;
  WriteOnly<DateTime> birthday_;
  WriteOnly<Currency> balance_;
  WriteOnly<std::string> password_;
};
