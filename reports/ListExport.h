#pragma once

#include <filesystem>

#include "reports/ExportTable.h"

/// Writes the list as a spreadsheet, or as CSV when the name ends in ".csv". The file stands under
/// its name only when it is whole, for its owner only. False when it was stopped. Throws FileError.
[[nodiscard]] bool exportList(const std::filesystem::path& file, const ExportTable& table,
                              const ExportProgress& goOn);
