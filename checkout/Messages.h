#pragma once

#include <QString>

#include "saleslib/Permission.h"

/// What is said to the cashier and asked in the system's boxes. The sale window implements it; a
/// test can.
class Messages {
 public:
  virtual ~Messages() = default;

  /// The program's own message window.
  virtual void ShowMessage(const QString& text) = 0;
  /// The system's message box with an OK button; an empty title is the program's.
  virtual void messageBox(const QString& text, const QString& title = {}) = 0;
  /// A question with Yes and No, one of them preselected.
  [[nodiscard]] virtual bool askYesNo(const QString& text, const QString& title,
                                      bool yesPreselected) = 0;
  /// Whether the operator may do that, or somebody approves it on the spot (see Permission); none
  /// when not. The permit is kept until it is done.
  [[nodiscard]] virtual Permit leave(const Deed& deed) = 0;
};
