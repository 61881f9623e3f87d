#pragma once

#include <utility>
#include <vector>

class QDialog;
class QLabel;
class QLayout;
class QLineEdit;

/// Lays out a small dialog that keeps its size: the title, a frame (`Frame1`) with a field beside
/// each caption, and the buttons below.
void layOutFramedFields(QDialog& dialog, QLabel* title,
                        const std::vector<std::pair<QLabel*, QLineEdit*>>& fields,
                        QLayout* buttons);
/// Shows no character of what is typed, and lets nothing be copied from it.
void hidePassword(QLineEdit* edit);
