#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "saleslib/Export.h"

class Connection;
struct TenderKind;

/// The shop's parameters, read from the data file when bound and kept in memory; each has a sound
/// value when none is set.
class TESSALY_API ClsSysParam {
 public:
  /// Binds and reads all parameters. A stored value that is not of its parameter's kind counts as
  /// not set. Throws StoreError.
  void Conn(Connection& connection);

  std::string ShopName() const;      ///< title line of receipts; empty
  std::string ReceiptText1() const;  ///< ReceiptText1 ... 6: free texts on receipts; empty
  std::string ReceiptText2() const;
  std::string ReceiptText3() const;
  std::string ReceiptText4() const;
  std::string ReceiptText5() const;
  std::string ReceiptText6() const;
  std::int16_t StockRule() const;  ///< 0: stock may go negative (default); 1: it may not
  bool RoundJiao() const;          ///< amounts due rounded to 0.1; off
  bool RoundYuan() const;          ///< amounts due rounded to whole yuan; off
  std::int16_t PointUnit() const;  ///< yuan per member point; 10; 0 gives no points
  double GeneralRate() const;      ///< factor for goods without a discount of their own; 1
  Currency VipRate() const;        ///< discount factor of the card class 贵宾卡; 1
  Currency SilverRate() const;     ///< of 银卡; 1
  Currency GoldRate() const;       ///< of 金卡; 1
  bool BackupOnExit() const;       ///< off
  bool CheckPayment() const;       ///< ask before figures that are likely mistyped; off
  bool GoodsImport() const;        ///< goods sheets may be imported at the till; off
  bool JoinShop() const;           ///< joining a shop in the till's further menu; off
  bool Approval() const;           ///< deeds need a right or an approval; off
  bool Practice() const;           ///< practising in the till's further menu; off
  bool OwnerReport() const;        ///< the owner's report in the till's further menu; off
  bool Shifts() const;             ///< nothing is sold outside a shift (saleslib/ShiftBooks.h); off
  bool KeepsJournal() const;       ///< what is done is noted (saleslib/Journal.h); off
  /// What a stored-value card may pay at one till while the shop's server does not answer; 0: it
  /// may not (OfflineCard is off).
  Currency OfflineCardLimit() const;
  bool OfflineReturn() const;  ///< goods of own bills may come back without the server; off
  bool OfflineStock() const;   ///< without the server the stock rule refuses, not only warns; off
  std::int16_t OfflineLoginDays() const;  ///< without the server nobody logs in after; 7; 0: never
  /// Whether the shop takes that kind of payment: those with a parameter of their own (PhonePay)
  /// are off.
  bool Takes(const TenderKind& kind) const;

  /// A parameter as the owner's tool lists it.
  struct Parameter {
    std::string name;
    std::string value;  ///< the text in force, default or set
    bool isSet;
    std::string meaning;  ///< for the owner
  };
  /// All parameters in a fixed order; unbound, with their defaults.
  std::vector<Parameter> list() const;
  /// Stores one parameter, and notes it in the journal, which Journal begins and ends; its name
  /// counts without regard to case. A switch is 0, 1, true, false, 是 or 否; a rate is more than 0
  /// and at most 1; a text is one line of at most 200 characters. Returns an empty text, or the
  /// reason why not (unknown name, wrong kind). Throws StoreError.
  [[nodiscard]] std::string set(std::string_view name, std::string_view value);
  /// Forgets what is set, so that the parameter's sound value is in force, and notes that; where
  /// nothing is set it does nothing. Returns as set does; Journal can only be set. Throws
  /// StoreError.
  [[nodiscard]] std::string unset(std::string_view name);
  /// What set would answer, without storing anything.
  [[nodiscard]] static std::string refusal(std::string_view name, std::string_view value);

 private:
  Connection* connection_ = nullptr;
  /// What is set, by name, in the form that Kind's reader gave it.
  std::map<std::string, std::string, std::less<>> values_;

  void note(const std::string& name, const std::string& before, const std::string& value);
  std::string value(std::string_view name) const;
  std::int16_t whole(std::string_view name) const;
  bool isOn(std::string_view name) const;
  Currency rate(std::string_view name) const;
};
