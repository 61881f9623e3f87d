#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// enrol FILE HOST CODE: this till joins the shop of that server. The till must be closed.
void addEnrolCommand(CLI::App& app, Console& console);
