#pragma once

#include "reports/ExportTable.h"

class WholeFile;

/// The table as a spreadsheet: numbers and times as such, everything else as text, whatever it
/// begins with; the headings stay in sight, and the columns are as wide as what is in them. False
/// when it was stopped. Throws FileError, for a list too long for a spreadsheet too.
[[nodiscard]] bool writeXlsx(WholeFile& file, const ExportTable& table, const ExportProgress& goOn);
