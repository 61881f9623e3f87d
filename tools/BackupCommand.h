#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// backup FILE TO: a verified copy of the data file, readable by its owner only, also while the
/// till is selling. An earlier file TO is replaced only by a whole copy.
void addBackupCommand(CLI::App& app, Console& console);
