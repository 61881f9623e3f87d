#pragma once

#include <filesystem>
#include <string>

#include "tools/Console.h"

namespace CLI {
class App;
}

/// autostart on|off: whether the till beside this tool starts by itself when the user who says so
/// logs in to the desktop.
void addAutostartCommand(CLI::App& app, Console& console);

/// What a desktop reads to start `program` at a login: a desktop entry (Desktop Entry Specification
/// 1.5) that counts only as long as the program is there.
std::string autostartEntry(const std::filesystem::path& program);
