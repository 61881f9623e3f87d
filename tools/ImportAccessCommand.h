#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// import-access OLD.mdb FILE: brings an Access data file's goods, members and bills into a new
/// data file, all or nothing, and says what it left out (see TakeOver). With --list, or without
/// FILE, says what the Access file holds and what would be taken.
void addImportAccessCommand(CLI::App& app, Console& console);
