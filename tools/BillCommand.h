#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// `bill redate`: a bill of a wrongly set clock gets its time back.
void addBillCommand(CLI::App& app, Console& console);
