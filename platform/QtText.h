#pragma once

#include <QString>
#include <string_view>

/// A text of the rooms below Qt, which is UTF-8, as Qt has it. The way back is toStdString().
inline QString qtText(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
