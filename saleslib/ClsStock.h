#pragma once

#include <cstdint>
#include <string>

#include "saleslib/Export.h"

class Connection;

/// What became of a movement of stock.
struct TESSALY_API StockOutcome {
  enum Kind { kDone, kShort, kOutOfRange };
  Kind kind = kDone;
  double left = 0;          ///< in stock after it, or now when it was refused; in stock units
  std::string goods;        ///< of a refusal: the goods' name and code
  bool isDoubtful = false;  ///< done although the stock would forbid it: others may know better

  [[nodiscard]] bool done() const { return kind == kDone; }
  /// Why it was refused (ensure), for people.
  std::string refusal() const;
};

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
  /// Takes that much out of stock, or puts it back when negative, within the caller's transaction
  /// (ensure), under the rule of TakeOut. The stock is read once, before it is written. Throws
  /// StoreError.
  [[nodiscard]] StockOutcome Move(double quantity, std::int16_t stockRule);
  /// The quantity in stock now; 0 for an item that has no stock record.
  double StockQty() const;
  /// The reason of the last refusal.
  const std::string& ErrText() const { return errText_; }

 private:
  bool moveAlone(double quantity, std::int16_t stockRule);
  void add(double quantity);
  StockOutcome refused(StockOutcome::Kind kind, double left) const;
  std::string goodsName() const;

  Connection* connection_ = nullptr;
  std::string itemCode_;
  std::string errText_;
};
