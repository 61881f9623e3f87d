#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// export FILE --table T CSV: writes a table as comma-separated rows to a file that only its owner
/// can read, or to the standard output for "-" (see Exporter).
void addExportCommand(CLI::App& app, Console& console);
