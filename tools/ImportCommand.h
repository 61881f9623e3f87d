#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// import FILE --table T CSV: brings comma-separated rows into a table, all or nothing (see
/// Importer).
void addImportCommand(CLI::App& app, Console& console);
