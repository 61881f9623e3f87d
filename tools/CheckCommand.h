#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// check FILE: examines the data file and the books (see Books), prints each fault, and makes
/// `exitCode` non-zero when there is one.
void addCheckCommand(CLI::App& app, Console& console, int& exitCode);
