#pragma once

#include <filesystem>

/// Takes every right on a file away from everybody but its owner. False when others keep some,
/// because the file is somebody else's; true too when there is no such file.
[[nodiscard]] bool makeOwnerOnly(const std::filesystem::path& file);
