#pragma once

#include <cstdint>
#include <string>

class Connection;

/// The stock of one item, in stock units. Each movement is one transaction of its own, or part of the
/// caller's.
class ClsStock {
 public:
  void Init(Connection& connection, std::string itemCode);

  /// Adds to stock. False on a refusal (quantity not finite), the reason in ErrText.
  [[nodiscard]] bool PutBack(double quantity, int unused = 0);
  /// Takes out of stock. Rule 0 lets the stock go negative; rule 1 refuses a take that would make it
  /// negative, with a text that names the goods and the stock.
  [[nodiscard]] bool TakeOut(double quantity, int unused, std::int16_t stockRule);
  /// The quantity in stock now; 0 for an item that has no stock record.
  double StockQty() const;
  const std::string& ErrText() const;

 private:
  [[nodiscard]] bool move(double quantity);

  Connection* connection_ = nullptr;
  std::string itemCode_;
  std::string errText_;
};
