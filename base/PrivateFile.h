#pragma once

#include <filesystem>

/// Whether what lies in the folder is its group's too: the folder passes its group on to its files
/// (set-group-ID) and gives others no right. Whoever made it so wants several users to share it.
[[nodiscard]] bool isShared(const std::filesystem::path& folder);

/// Takes every right on a file or folder away from everybody but its owner, and in a shared folder
/// the folder's group, which gets the owner's right to read and write. False when others keep some,
/// because the file is somebody else's; true too when there is no such file.
[[nodiscard]] bool makePrivate(const std::filesystem::path& file);
