#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// param list FILE and param set FILE NAME=VALUE...: the shop's parameters. A set of several is all
/// or nothing.
void addParamCommand(CLI::App& app, Console& console);
