#pragma once

#include <QString>

class QWidget;

/// The system's message boxes. The buttons answer to the keyboard alone.

/// A text with an OK button. An empty title is the program's.
void messageBox(QWidget* parent, const QString& text, const QString& title = {});
/// As messageBox, with the information, question or exclamation icon.
enum class BoxIcon { kNone, kInformation, kQuestion, kExclamation };
void messageBox(QWidget* parent, const QString& text, const QString& title, BoxIcon icon);
/// A question with Yes and No, one of them preselected.
[[nodiscard]] bool askYesNo(QWidget* parent, const QString& text, const QString& title,
                            bool yesPreselected);

/// Moves a dialog to the middle of its screen (or of its parent window).
void centreOnScreen(QWidget& window);
