#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// shop init, add-till, tills, check, revoke: the owner's work at the server of a shop with several
/// tills. `exitCode` becomes 1 when check finds faults.
void addShopCommand(CLI::App& app, Console& console, int& exitCode);
