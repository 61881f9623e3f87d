#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "base/WriteMark.h"
#include "saleslib/Export.h"

class Connection;
class Row;

/// One line of a bill.
class TESSALY_API ClsSellItem {
 public:
  /// Binds and starts a new line of that bill; the third argument is unused and 0.
  void Init(Connection& connection, std::int32_t billNo, int unused = 0, Clock clock = localTime);
  /// From a row of sellProducts.
  static ClsSellItem fromRow(Connection& connection, const Row& row);

  /// Inserts the line's row the first time, updates it afterwards. Throws StoreError, also when the
  /// row was deleted. A row that was inserted in a transaction that is taken back counts as new
  /// again.
  void Save();
  /// Whether Save has anything to write: the line is new, was changed since its last Save, or that
  /// Save was taken back with its transaction.
  [[nodiscard]] bool Changed() const;
  /// Deletes the line's row, if it has one; the line is not saved again.
  void Delete();

  Currency Price() const { return price_; }
  void setPrice(Currency price) { change(price_, price); }
  /// A price that the cashier typed, for goods that have none.
  void typePrice(Currency price) {
    setPrice(price);
    priceTyped_ = true;
  }
  /// Whether the price was typed, as far as this object knows: its row does not.
  bool PriceTyped() const { return priceTyped_; }
  double Quantity() const { return quantity_; }  ///< in units of sale
  void setQuantity(double quantity) { change(quantity_, quantity); }
  ::Discount Discount() const { return discount_; }
  void setDiscount(::Discount discount) { change(discount_, discount); }
  /// Price x quantity x discount, rounded to 0.01, halves away from zero. Throws Overflow.
  Currency Money() const;
  /// The row's key in sellProducts; 0 until stored.
  std::int32_t Id() const;
  const std::string& EntryCode() const { return entryCode_; }  ///< what the cashier entered
  void setEntryCode(std::string code) { change(entryCode_, std::move(code)); }
  const std::string& SpName() const { return spName_; }
  void setSpName(std::string name) { change(spName_, std::move(name)); }
  const std::string& SpCode() const { return spCode_; }  ///< item code
  void setSpCode(std::string code) { change(spCode_, std::move(code)); }
  const std::string& Origin() const { return origin_; }
  void setOrigin(std::string origin) { change(origin_, std::move(origin)); }
  const std::string& Unit() const { return unit_; }
  void setUnit(std::string unit) { change(unit_, std::move(unit)); }
  std::int16_t Ratio() const { return ratio_; }  ///< stock units per unit of sale
  void setRatio(std::int16_t ratio) { change(ratio_, ratio); }
  Currency Cost() const { return cost_; }
  void setCost(Currency cost) { change(cost_, cost); }
  const std::string& Category() const { return category_; }
  void setCategory(std::string category) { change(category_, std::move(category)); }

  std::int32_t BillNo() const { return billNo_; }
  /// When the line's row was first stored; the beginning of the calendar until then.
  DateTime EntryTime() const { return entryTime_; }
  /// Quantity x ratio: what the line takes out of stock.
  double StockQuantity() const;

 private:
  void insert();
  void update();
  template <class T>
  void change(T& member, T value) {
    member = std::move(value);
    saved_ = kNotWritten;
  }

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t billNo_ = 0;
  std::int32_t id_ = 0;
  DateTime entryTime_;
  WriteMark inserted_ = kNotWritten;
  WriteMark saved_ = kNotWritten;
  Currency price_, cost_;
  bool priceTyped_ = false;
  double quantity_ = 1;
  ::Discount discount_;
  std::int16_t ratio_ = 1;
  std::string entryCode_, spName_, spCode_, origin_, unit_, category_;
};
