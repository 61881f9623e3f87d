#pragma once

#include "base/DateTime.h"

class Connection;

/// Fills a new data file with a Chinese corner shop to try the till with: 300 goods with stock,
/// five members with cards (one of them blocked), three operators (the owner, a cashier, a
/// supervisor who allows what the cashier may not), receipt texts. Promotions lie around the day
/// that the clock shows. All or nothing.
void fillDemoShop(Connection& connection, const Clock& clock);
