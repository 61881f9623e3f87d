#pragma once

#include <filesystem>
#include <string>

#include "store/DataFile.h"

/// Puts a backup in the place of a data file, as the one and only: no log of the old file is
/// replayed into it. The backup must be a shop's data file of a version that this program knows,
/// with that password, and sound; it stays. The old file and its logs are put aside under its name
/// and `mark`; gives that path, or an empty one when there was none. Keeps the old file's owner.
/// Refuses while a till has the file. Throws Failure; then the old file stands, or the text says
/// where it is.
[[nodiscard]] std::filesystem::path restoreDataFile(const std::filesystem::path& backup,
                                                    const DataSource& target,
                                                    const std::string& mark);
