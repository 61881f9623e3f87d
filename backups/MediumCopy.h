#pragma once

#include <filesystem>
#include <functional>

/// Copies a backup onto a medium that may be slow, full or gone at any moment: little by little,
/// each piece on the medium before the next, and then read back from it and compared. An earlier
/// file `to` is replaced only by a whole and equal one. False when `stop`, asked between the
/// pieces, said yes. Throws FileError.
[[nodiscard]] bool copyToMedium(const std::filesystem::path& from, const std::filesystem::path& to,
                                const std::function<bool()>& stop);
