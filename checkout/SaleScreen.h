#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <vector>

class ClsSell;
class Settlement;

/// The few things that a procedure of the sale wants from the screen. The sale window implements
/// it; a test can.
class SaleScreen {
 public:
  virtual ~SaleScreen() = default;

  /// Rows, their texts or the selection changed: draw the list again.
  virtual void rowsChanged() = 0;
  /// Puts the input line over the selected row's cell of the edited column, with the cell's text,
  /// and sets clearOnKey.
  virtual void PlaceEditor() = 0;
  virtual QString input() const = 0;
  virtual void setInput(const QString& text) = 0;

  virtual void setTitle1(const QString& text) = 0;      ///< bill number and cashier
  virtual void setTitle3(const QString& text) = 0;      ///< the previous bill
  virtual void setStatus(const QString& text) = 0;      ///< status line `txtmoney`
  virtual void setMemberInfo(const QString& text) = 0;  ///< `lblViewMember`

  /// The program's own message window.
  virtual void ShowMessage(const QString& text) = 0;
  /// The system's message box with an OK button; an empty title is the program's.
  virtual void messageBox(const QString& text, const QString& title = {}) = 0;
  /// A question with Yes and No, one of them preselected.
  [[nodiscard]] virtual bool askYesNo(const QString& text, const QString& title,
                                      bool yesPreselected) = 0;
  /// Asks for one text (frmInput); empty after Esc.
  [[nodiscard]] virtual QString prompt(const QString& title, const QString& message) = 0;
  /// A popup menu of `count` entries; the position chosen, or nothing chosen: -1. A caption may be
  /// asked for late, when its entry comes into view; asking must not throw.
  [[nodiscard]] virtual int choose(int count,
                                   const std::function<QString(int position)>& caption) = 0;
  /// Shows the bills put aside; the number of the one to be taken up again, 0 for none.
  [[nodiscard]] virtual std::int32_t chooseHeldBill(
      const std::vector<std::shared_ptr<ClsSell>>& bills) = 0;
  /// Runs the settlement dialog; true when payment was confirmed.
  [[nodiscard]] virtual bool settle(Settlement& settlement) = 0;

  /// Ends the whole program at once; a caller returns straight after it.
  virtual void endProgram() = 0;
};
