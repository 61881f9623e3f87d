#pragma once

#include <cstdint>
#include <string>

#include "saleslib/ShopLink.h"

class Connection;

/// A till joins a shop with a server: from the tool and from the till alike.

/// What its owner types.
struct JoinRequest {
  std::string host;  ///< as link/ServerAddress.h has it
  std::string code;  ///< as server/JoinCode.h reads it
  int port = 5432;
  std::string database = "till";
};

struct JoinedShop {
  ShopLink link;
  std::int64_t highestBill = 0;  ///< for joinShop
};

/// Throws Failure, with what has to be done first, while a bill or a shift is open: it would belong
/// to two histories.
void requireJoinable(Connection& file);

/// What the server makes of the code: from then on it is used up, and joinShop writes what came of
/// it. Some seconds at most for each host. Throws Failure with the reason for the owner: no code, a
/// silent server, one that refuses the code, or one whose certificate does not vouch for the name
/// it is called by.
JoinedShop joinAtServer(const JoinRequest& request);
