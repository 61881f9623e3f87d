#pragma once

#include "reports/ExportTable.h"

class WholeFile;

/// The table as CSV (RFC 4180) in UTF-8 with a byte order mark. Texts are quoted, and those that
/// begin as a formula made none; numbers and times are bare. False when it was stopped. Throws
/// FileError.
[[nodiscard]] bool writeCsv(WholeFile& file, const ExportTable& table, const ExportProgress& goOn);
