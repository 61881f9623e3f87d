#pragma once

#include "shop/NewShop.h"
#include "shop/TillSetup.h"
#include "tools/Console.h"

/// Asks at a terminal, line by line (tools/Questions.h), what the first start of the till asks in
/// its windows. `till` is the till on this machine; without one, what belongs to it is not asked.
/// Throws Refusal when the answers end too early.
[[nodiscard]] NewShop askForShop(Console& console, TillSetup* till);
