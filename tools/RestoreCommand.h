#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// restore [BACKUP] FILE: puts a verified backup in the place of the data file, whose old files are
/// put aside under a dated name. Without BACKUP it lists the dated ones, those beside the data file
/// or in the folder --from, and asks for one. Refuses while a till has the file.
void addRestoreCommand(CLI::App& app, Console& console);
