#include "sale/EditedCell.h"

#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"

namespace {

constexpr int kCode = 1, kQuantity = 2, kLast = 3;

}  // namespace

EditedCell::EditedCell(SaleState& state, SaleScreen& screen) : state_(state), screen_(screen) {}

void EditedCell::MoveRow(bool up) {
  const int target = state_.selected + (up ? -1 : 1);
  if (reachable(target)) {
    state_.onEntryRow = !up;
    place(target, up ? kQuantity : kCode);
  } else if (!up || !state_.onEntryRow) {
    place(state_.selected, up ? kQuantity : kCode);
  }
}

bool EditedCell::moveColumn(int step) {
  const int column = state_.editCol + step;
  if (column < kCode || column > kLast) return false;
  place(state_.selected, column);
  return true;
}

void EditedCell::toEntryRow() {
  state_.onEntryRow = true;
  place(static_cast<int>(state_.rows.size()) - 1, kCode);
}

bool EditedCell::reachable(int row) const {
  return row >= 0 && row < static_cast<int>(state_.rows.size()) &&
         state_.rows[static_cast<std::size_t>(row)].tag == 0;
}

void EditedCell::place(int row, int column) {
  state_.selected = row;
  state_.editCol = column;
  screen_.rowsChanged();
  screen_.PlaceEditor();
}
