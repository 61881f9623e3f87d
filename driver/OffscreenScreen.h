#pragma once

#include <filesystem>
#include <string>

/// Describes a screen of that size to Qt's off-screen platform, in a file in that folder. Gives
/// what QT_QPA_PLATFORM must say to use it.
std::string offscreenPlatform(const std::filesystem::path& folder, int width, int height);
