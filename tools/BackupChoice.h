#pragma once

#include <filesystem>
#include <string>

#include "store/DataSource.h"
#include "tools/Console.h"

/// Lists the dated backups of a data file, latest first, with what each one holds, and reads which
/// of them is meant. `folder` is where they are; empty: the folder "backups" beside the file.
/// Throws Refusal when there are none, or none of them was chosen.
[[nodiscard]] std::filesystem::path askForBackup(const DataSource& file, const std::string& folder,
                                                 Console& console);
