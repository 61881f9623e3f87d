#pragma once

#include <filesystem>
#include <string>

/// The data file as it stands on disk (found without regard to case). Throws StoreError when it is
/// missing or no file.
std::filesystem::path existingDataFile(const std::filesystem::path& path);

/// Why the system refused to make a file beside or as the data file, for the shop's owner.
std::string fileFault(int errorNumber);
