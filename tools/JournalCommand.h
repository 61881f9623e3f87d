#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// `tilladmin journal FILE`: prints the journal, filtered.
void addJournalCommand(CLI::App& app, Console& console);
