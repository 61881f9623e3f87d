#pragma once

#include <cstdint>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/Export.h"

class Connection;

/// One return against a line of a stored bill.
class TESSALY_API ClsUnSell {
 public:
  /// Binds and starts a return against that bill; the third argument is unused and 0.
  void Init(Connection& connection, std::int32_t billNo, int unused = 0, Clock clock = localTime);
  /// Stores the return, in one transaction. UnQty is limited to what the line still holds, and
  /// UnMoney falls in proportion, rounded to 0.01; read both back. When nothing is held, nothing is
  /// stored, and both read 0. Lowering the line is the caller's. Throws StoreError; ensure() guards
  /// a line that is not of this bill.
  void Save();

  /// What was taken back of a line, and refunded for it.
  struct Earlier {
    double quantity = 0;
    Currency money;
  };
  /// The stored returns against a line of that bill, which may be another till's. Throws
  /// StoreError.
  static std::vector<Earlier> OfLine(Connection& connection, std::int32_t billNo,
                                     std::int32_t itemId);

  /// The record's number; 0 until it is stored.
  std::int32_t Id() const { return id_; }
  double UnQty() const { return quantity_; }
  void setUnQty(double quantity) { quantity_ = quantity; }
  Currency UnMoney() const { return money_; }
  void setUnMoney(Currency money) { money_ = money; }
  /// 0 for a line of another till's bill: what it holds is not looked at.
  void setItemId(std::int32_t id) { itemId_ = id; }
  void setOperatorId(std::int16_t id) { operatorId_ = id; }
  void setCost(Currency cost) { cost_ = cost; }
  void setRatio(std::int16_t ratio) { ratio_ = ratio; }
  void setDiscount(::Discount discount) { discount_ = discount; }

 private:
  double heldByLine() const;
  void limitTo(double held);

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t billNo_ = 0, itemId_ = 0, id_ = 0;
  double quantity_ = 0;
  Currency money_, cost_;
  std::int16_t operatorId_ = 0, ratio_ = 1;
  ::Discount discount_;
};
