#pragma once

#include "shop/TillSetup.h"
#include "tools/Console.h"

namespace CLI {
class App;
}

/// setup FILE: asks for a new shop (tools/SetupQuestions.h) and makes its data file when all is
/// answered, never over another file. Answers that end too early leave nothing made.
/// Where a till finds the data file by itself, data/POS.mdb of a shop's folder, it asks for that
/// till's devices and colours too.
void addSetupCommand(CLI::App& app, Console& console, const TillSetupOf& tillSetup);
