#pragma once

#include <string>
#include <vector>

#include "tools/AccessPlan.h"

class Connection;

/// What the books need and another program's did not keep, worked out from the rows that were taken
/// over. Each gives what the owner should know of it, empty when there is nothing to say.

/// Quantity, goods amount and amount due of bills, from their lines, where the file had no such
/// columns. Without a state all of them count as settled.
std::string sumUpBills(Connection& connection, const AccessPlan& plan);
/// What members bought, from their bills, where the file did not say.
std::string sumUpPurchases(Connection& connection, const AccessPlan& plan);
/// A row of stock for everything that was sold, at 0 where the file had none: selling makes it.
std::string beginStock(Connection& connection, const AccessPlan& plan);
/// Balances that do not follow from a card's top-ups and payments stand among the top-ups, as one
/// that the owner sets does.
std::string recordBalances(Connection& connection);
/// Bills that were rounded came from a shop that had a rule for it: the rule stands as it is, but
/// set, so that they are no fault of the books.
std::string nameRounding(Connection& connection);
/// Who rang the bills: the owner has to make these operators anew.
std::string nameOperators(Connection& connection);
