#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "saleslib/Export.h"

class ClsSell;
class Connection;

/// A held bill that goes from one till of a shop to another. Its basket is JSON: what billRecord
/// says of it, the name of who held it ("cashier") and the member's card ("member"), for numbers of
/// members are each till's own. Each function is one transaction at most, and throws StoreError.

/// The numbers of the bills that this till holds.
TESSALY_API std::vector<std::int64_t> heldNumbers(Connection& connection);
/// Their baskets by number, one JSON object.
TESSALY_API std::string heldBaskets(Connection& connection);

/// Deletes a held bill and puts its stock back: from now on it is that till's, under that key.
/// False when it is held no more, and nothing was done.
TESSALY_API bool releaseHeld(Connection& connection, std::int64_t bill, const std::string& key,
                             int toTill);
/// Makes a held bill of this till out of a basket that was given up for it, and takes its stock;
/// once, however often it comes. The bill's number, which may be gone if it came before; 0 for a
/// basket that cannot be read or stored, which the journal tells.
TESSALY_API std::int64_t receiveHeld(Connection& connection, const std::string& key,
                                     const std::string& basket);

/// A basket as a bill that is only looked at.
std::shared_ptr<ClsSell> heldBill(Connection& connection, const std::string& basket);
