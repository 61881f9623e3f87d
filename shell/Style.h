#pragma once

class QApplication;
class QColor;

/// The look of the whole program: one style sheet, large type, high contrast, focus always visible.

/// Sets fonts and style sheet for all windows.
void applyStyle(QApplication& application);
/// A setting's colour, 0x00BBGGRR.
QColor settingColour(int bgr);
/// How bright the eye sees it, 0 ... 1 (relative luminance, WCAG 2).
double luminance(const QColor& colour);
/// Black or white, whichever reads better on that background.
QColor legibleOn(const QColor& background);
