#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// check FILE [--repair]: examines the data file and the books (see Books), prints each fault, and
/// makes `exitCode` non-zero when there is one. Names the top-ups that were not completed, too.
/// --repair first makes a wrong goods index new; it changes no book.
void addCheckCommand(CLI::App& app, Console& console, int& exitCode);
