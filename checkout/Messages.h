#pragma once

#include <QString>

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
};
