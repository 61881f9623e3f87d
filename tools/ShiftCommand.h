#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// `tilladmin shift FILE`: lists the closed shifts, or writes the sheet of one.
void addShiftCommand(CLI::App& app, Console& console);
