#pragma once

#include <string>

#include "ThrowAwayServer.h"
#include "saleslib/ShopLink.h"
#include "server/ShopServer.h"

class Connection;

/// The till joins the shop of that server under that number, as the owner and a code have it, and
/// will look for the server at `host`: the server's own socket, or one that stands before it.
inline void joinThrowAwayShop(ThrowAwayServer& server, Connection& till, int number,
                              const std::string& host, bool again = false) {
  ServerLine owner(server.owner());
  const JoinCode code = ShopServer(owner).addTill(number, again);
  const std::string role = "till_" + std::to_string(number);
  ServerLine line(
      joiningParameters({server.folder().string(), server.port(), "books", role, code.secret}));
  const ShopServer::Joined place = ShopServer::enrol(line, number, "password");
  joinShop(till,
           {.till = number,
            .epoch = place.epoch,
            .host = host,
            .port = server.port(),
            .database = "books",
            .password = "password",
            .authority = ""},
           place.highestBill);
}
