#pragma once

#include <QString>

class posMod;
class SaleScreen;
struct SaleState;

/// Turns a typed or scanned code into a priced current line. Each look-up lets the cashier choose when
/// several items match, and answers whether state.curLine is a new line; when not, it is unchanged.
class ItemLookup {
 public:
  ItemLookup(posMod& pos, SaleState& state, SaleScreen& screen);

  /// tmda by exact barcode.
  [[nodiscard]] bool LookupBarcode(const QString& code);
  /// tmda by a fragment of the specification.
  [[nodiscard]] bool LookupSpec(const QString& code);
  /// spda by a fragment of the item number.
  [[nodiscard]] bool LookupItemNo(const QString& code);

 private:
  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
};
