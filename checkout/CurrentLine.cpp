#include "checkout/CurrentLine.h"

#include "base/Failure.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleState.h"

namespace {

void addToBill(SaleState& state) {
  ensure(state.curLine != nullptr, "only a current line can be committed");
  const int row = state.onEntryRow ? state.selected - 1 : state.selected;
  ensure(row >= 0 && row + 1 < static_cast<int>(state.rows.size()),
         "the current line's row stands above the entry row");
  state.rows[static_cast<std::size_t>(row)].tag = state.curLine->Id();
  if (!state.onEntryRow) {
    state.selected = row + 1;
    state.editCol = 1;
    state.onEntryRow = true;
  }
  state.curBill->AddItem(state.curLine);
}

}  // namespace

void joinCurrentLine(SaleState& state) {
  addToBill(state);
  state.curLine = nullptr;
}

void commitCurrentLine(SaleState& state, LineReceipt& receipt) {
  addToBill(state);
  receipt.PrintLine(*state.curLine);
  state.curLine = nullptr;
}
