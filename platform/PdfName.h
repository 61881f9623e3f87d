#pragma once

#include <filesystem>
#include <string>

#include "base/DateTime.h"

/// The file name of the next print job in a folder: "20261122-090503-0001-<job>.pdf". It sorts
/// after every such name in the folder, also within one second and when the clock was set back.
/// What a file name cannot hold becomes "_" in the job's name. Throws
/// std::filesystem::filesystem_error when the folder cannot be read.
std::string nextPdfName(const std::filesystem::path& folder, const DateTime& now,
                        const std::string& job);
