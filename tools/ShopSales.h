#pragma once

#include <string>

#include "tools/Console.h"

namespace CLI {
class App;
}

/// What a shop's tills sold, line by line, at its server: what the sales query is at a till.
std::string shopSalesMeaning();
/// `server` says how to connect, and outlives the command.
void addShopSales(CLI::App& command, const std::string& server, Console& console);
