#pragma once

#include <memory>

#include "TemporaryFolder.h"
#include "ThrowAwayServer.h"
#include "server/ShopServer.h"
#include "storm/Proxy.h"

class Connection;

/// A shop's server on this machine, with a network between it and the tills.
class ServerBeside {
 public:
  ServerBeside();

  /// The file's till becomes the shop's first one.
  void join(Connection& till);
  /// The way to the server for that till, past the network.
  LineParameters till();
  /// Returns when the server has all that this till has written.
  void await(Connection& till);

  Proxy& network() { return network_; }
  ThrowAwayServer& server() { return server_; }

 private:
  TemporaryFolder folder_;
  ThrowAwayServer server_;
  Proxy network_;
};
