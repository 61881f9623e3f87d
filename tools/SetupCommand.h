#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// setup FILE: asks for a new shop (tools/SetupQuestions.h) and makes its data file when all is
/// answered, never over another file. Answers that end too early leave nothing made.
void addSetupCommand(CLI::App& app, Console& console);
