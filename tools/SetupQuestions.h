#pragma once

#include "shop/NewShop.h"
#include "tools/Console.h"

/// Asks at a terminal, line by line, what the first start of the till asks in its windows, except
/// for what belongs to one till and not to the shop's data file: its devices and colours. An empty
/// line is the answer in brackets; an answer that cannot be is said, and asked for again. Throws
/// Refusal when the answers end too early.
[[nodiscard]] NewShop askForShop(Console& console);
