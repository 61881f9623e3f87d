#pragma once

#include <istream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/CsvReader.h"
#include "base/Currency.h"
#include "base/Discount.h"

/// One article of the demo shop.
struct DemoGoodsRow {
  std::string category, itemNumber, itemCode, barcode, name, specification, unit, origin;
  Currency price, memberPrice, cost;
  Discount discount;
  std::optional<Currency> promotionPrice;
  std::optional<int> promotionFrom, promotionTo;  ///< days from the day of creation
  double stock = 0;
  std::string caseBarcode, caseUnit;
  int caseRatio = 0;  ///< 0: not sold by the case
  Currency casePrice;
};

/// Reads the demo shop's goods. The sheet is our own, so a value that is none is a bug (ensure).
class GoodsSheet {
 public:
  explicit GoodsSheet(std::istream& text);
  /// The next article; nothing at the end.
  std::optional<DemoGoodsRow> next();

 private:
  const std::string& field(const char* column) const;
  Currency money(const char* column) const;
  std::optional<int> whole(const char* column) const;

  CsvReader reader_;
  std::map<std::string, std::size_t, std::less<>> places_;
  std::vector<std::string> fields_;
};
