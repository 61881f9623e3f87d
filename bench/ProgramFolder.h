#pragma once

#include <filesystem>

/// Puts the till's program and its library into a folder that has the data file already.
void installTill(const std::filesystem::path& folder);
/// Puts the empty window into a folder, under the till's name, and makes it an empty data file.
void installEmptyWindow(const std::filesystem::path& folder);
/// The owner's tool.
std::filesystem::path ownersTool();
