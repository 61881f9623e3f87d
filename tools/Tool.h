#pragma once

#include "shop/TillSetup.h"
#include "tools/Console.h"

/// Runs one command line of tilladmin. Gives the exit code: 0 when the command did its work, 1 when
/// it refused or failed (with the reason on `console.err`, and nothing done) or `check` found
/// faults, 2 when the command line is none.
/// `tillSetup` makes what setup asks the till on this machine with; without it, it does not.
int runTool(int count, const char* const* arguments, Console& console,
            const TillSetupOf& tillSetup = {});
