#pragma once

#include <string>

class Connection;

/// What other tills did to this till's stock, cards and members. The server tells their part as a
/// whole, and the file keeps what it was told last: the difference is added to what the till has,
/// so that nothing is added twice and what the till itself does meanwhile stays. `kind` is "stock",
/// "card", "spent" (what a member bought, in yuan) or "points", `key` an item or a card's number.
/// Points for which their column has no room are added when there is some. Inside a transaction.
/// Throws StoreError.
void followOthers(Connection& connection, const std::string& kind, const std::string& key,
                  double part);
/// Whether followOthers knows that kind.
bool isOthersPart(const std::string& kind);
/// A member who was just added has what others loaded, charged, sold and gave points for.
void giveOthersPart(Connection& connection, const std::string& card);
