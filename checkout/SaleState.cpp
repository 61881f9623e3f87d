#include "checkout/SaleState.h"

#include "base/Failure.h"

BillRow::Column SaleState::editColumn() const {
  static constexpr std::array<BillRow::Column, 3> kEditable = {BillRow::kNumber, BillRow::kQuantity,
                                                               BillRow::kDiscount};
  ensure(editCol >= 1 && editCol <= 3, "the editor is on one of the three editable columns");
  return kEditable[static_cast<std::size_t>(editCol - 1)];
}

void SaleState::AddEntryRow() {
  rows.emplace_back();
  selected = static_cast<int>(rows.size()) - 1;
  editCol = 1;
}

void SaleState::clearRows() {
  rows.clear();
  selected = -1;
}
