#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// create FILE [--demo]: makes a new data file, never over another file; with --demo, filled with
/// the demo shop.
void addCreateCommand(CLI::App& app, Console& console);
