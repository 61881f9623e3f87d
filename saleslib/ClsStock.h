#pragma once

#include <cstdint>
#include <string>

#include "saleslib/Export.h"

class Connection;

/// The stock of one item, in stock units, kept to six decimals: what is taken out and put back
/// leaves exactly what was there. Each movement is one transaction of its own, or part of the
/// caller's.
class TESSALY_API ClsStock {
 public:
  void Init(Connection& connection, std::string itemCode);

  /// Adds to stock. False on a refusal (a quantity that is no number or beyond 10^12), the reason
  /// in ErrText. Throws StoreError.
  [[nodiscard]] bool PutBack(double quantity, int unused = 0);
  /// Takes out of stock. Rule 0 lets the stock go negative; any other refuses a take that would
  /// make it negative, with a text that names the goods and the stock. False on that refusal and on
  /// those of PutBack. Throws StoreError.
  [[nodiscard]] bool TakeOut(double quantity, int unused, std::int16_t stockRule);
  /// The quantity in stock now; 0 for an item that has no stock record.
  double StockQty() const;
  /// The reason of the last refusal.
  const std::string& ErrText() const { return errText_; }

 private:
  [[nodiscard]] bool acceptable(double quantity);
  void add(double quantity);
  bool takeIfEnough(double quantity);
  std::string goodsName() const;

  Connection* connection_ = nullptr;
  std::string itemCode_;
  std::string errText_;
};
