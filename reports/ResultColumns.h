#pragma once

#include <array>

/// The columns of the sales query, in the order of the list.
enum ResultColumn {
  kColumnTime,
  kColumnBill,
  kColumnCode,
  kColumnName,
  kColumnUnit,
  kColumnQuantity,
  kColumnPrice,
  kColumnDiscount,
  kColumnMoney,
  kColumnUnitCost,
  kColumnCost,
  kColumnProfit,
  kColumnBarcode,
  kColumnCategory,
  kResultColumns
};

struct ResultColumnDesign {
  const char* header;  ///< as files have it; ResultModel shows it in the screen's language
  int width;           ///< in the list, in twips
  bool isNumber;       ///< compared, aligned and exported as a number
};

const std::array<ResultColumnDesign, kResultColumns>& resultColumns();
