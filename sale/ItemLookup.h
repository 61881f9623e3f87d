#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <string>

#include "base/Currency.h"
#include "saleslib/ClsStock.h"

class ClsSellItem;
class posMod;
class Recordset;
class Row;
class SaleScreen;
struct Price;
struct SaleState;

/// Turns a typed or scanned code into a priced current line. Each look-up lets the cashier choose
/// when several items match and asks for a missing price, and answers whether state.curLine is a
/// new line; when not, it is unchanged. A look-up that breaks shows why and finds nothing.
class ItemLookup {
  Q_DECLARE_TR_FUNCTIONS(ItemLookup)

 public:
  ItemLookup(posMod& pos, SaleState& state, SaleScreen& screen);

  /// tmda by exact barcode.
  [[nodiscard]] bool LookupBarcode(const QString& code);
  /// tmda by a fragment of the specification.
  [[nodiscard]] bool LookupSpec(const QString& code);
  /// spda by a fragment of the item number.
  [[nodiscard]] bool LookupItemNo(const QString& code);

 private:
  using Caption = std::function<QString(const Row& row)>;
  using Filler = std::function<void(ClsSellItem& line, const Row& row)>;
  bool lookUp(const std::string& statement, const Caption& caption, const Filler& fill);
  int choose(const Recordset& found, const Caption& caption);
  bool lookUpBarcodeTable(const std::string& statement, const std::string& code);
  void fillFromBarcodeRow(ClsSellItem& line, const Row& row, const std::string& code);
  void fillFromMasterRow(ClsSellItem& line, const Row& row);
  void setPrice(ClsSellItem& line, const Price& price);
  Currency askPrice();
  QString stockText(const std::string& itemCode);

  posMod& pos_;
  SaleState& state_;
  SaleScreen& screen_;
  ClsStock stock_;
};
