#pragma once

#include <QString>

class QWidget;

/// Asks where an export goes: a name that ends in ".xlsx" (added when neither is given) or ".csv".
/// Empty when the question was left, or an existing file is to stay.
QString askExportName(QWidget* parent, const QString& proposed);
