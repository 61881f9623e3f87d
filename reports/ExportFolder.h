#pragma once

#include <filesystem>

class IniFile;

/// Where exports go: `ExportFolder` of section Till, where a relative one starts at the shop's
/// folder; a folder Exports there when nothing is set.
std::filesystem::path exportFolder(const IniFile& settings,
                                   const std::filesystem::path& shopFolder);
/// Makes the folder, for its owner only, unless it is there. Throws Failure.
void makeExportFolder(const std::filesystem::path& folder);
