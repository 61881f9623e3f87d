#pragma once

#include <filesystem>

/// The data file as it stands on disk (found without regard to case). Throws StoreError when it is
/// missing or no file.
std::filesystem::path existingDataFile(const std::filesystem::path& path);
