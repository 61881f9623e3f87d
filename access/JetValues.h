#pragma once

#include <string>
#include <string_view>

#include "access/AccessFile.h"

/// A text of a Jet 4 file in UTF-8: UTF-16, lowest byte first, or its compressed form, which begins
/// with FF FE; half of a surrogate pair becomes U+FFFD. Both are described under "Text Data Type"
/// in the document HACKING.md of mdbtools.
std::string jet4Text(std::string_view bytes);

/// The decimal number that a Single shows: 0.9, not 0.899999976.
double asShown(float number);

/// An OLE Automation date: whole days since 1899-12-30, and the part of a day, which counts forward
/// on days before that too; to the nearest second. The number itself when it is outside the years
/// 100 to 9999.
AccessValue jetDate(double days);
