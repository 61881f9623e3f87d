#pragma once

#include <QStringList>

class QWidget;

/// What can be read in a window now: its title, and the texts of the controls and the rows that
/// show in it, without the marks of access keys.
QStringList shownTexts(const QWidget& window);
