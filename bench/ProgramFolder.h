#pragma once

#include <filesystem>

/// Puts the till's program and its library into a folder that has the data file already.
void installTill(const std::filesystem::path& folder);
/// Puts the empty window into a folder, under the till's name, and gives it that data file, or an
/// empty one.
void installEmptyWindow(const std::filesystem::path& folder,
                        const std::filesystem::path& dataFile = {});
/// The owner's tool.
std::filesystem::path ownersTool();
