#pragma once

#include <filesystem>
#include <string>

/// The folder that holds the shop, Config.ini and data/: `asked` on the command line; else what the
/// file shop-folder beside the program names (the first line of it that is neither empty nor begins
/// with "#"), which an installed package has as a link to /etc/till/shop-folder; else the program's
/// own folder. A relative `asked` starts at the working folder, one in the file at the program's.
std::filesystem::path shopFolder(const std::string& asked,
                                 const std::filesystem::path& programFolder);
