#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// operator add|list|password|right|card|remove FILE: who may work at the till. A password that the
/// command line does not give is asked for.
void addOperatorCommand(CLI::App& app, Console& console);
