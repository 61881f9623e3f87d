#pragma once

#include <QByteArrayView>
#include <QString>

/// A text of the rooms below Qt or of a file, which is UTF-8, as Qt has it; broken bytes become
/// U+FFFD. The way back is toStdString().
inline QString qtText(QByteArrayView utf8) {
  return QString::fromUtf8(utf8);
}
