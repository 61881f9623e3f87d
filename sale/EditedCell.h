#pragma once

class SaleScreen;
struct SaleState;

/// The cell of the list that typing changes. Whatever moves it moves the input line and its frame
/// with it: nobody else changes column or row of what is edited, but for a new entry row.
class EditedCell {
 public:
  EditedCell(SaleState& state, SaleScreen& screen);

  /// Up to the quantity of the current line, or down to the code of the entry row. Committed lines
  /// are out of reach: there Up from the entry row changes nothing.
  void MoveRow(bool up);
  /// To the editable column before or behind (-1, 1). False at the ends, where it stays.
  [[nodiscard]] bool moveColumn(int step);
  /// To the code of the entry row.
  void toEntryRow();

 private:
  bool reachable(int row) const;
  void place(int row, int column);

  SaleState& state_;
  SaleScreen& screen_;
};
