#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// report FILE --from D --to D --format text|csv|xlsx|html --out FILE|-: the owner's report (see
/// takingsReport).
void addReportCommand(CLI::App& app, Console& console);
