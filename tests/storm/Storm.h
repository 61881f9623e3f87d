#pragma once

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "ThrowAwayServer.h"
#include "storm/Process.h"
#include "storm/Proxy.h"

/// A shop of several tills in bad weather. Throws std::runtime_error naming what is lost, doubled
/// or wrong.
class Storm {
 public:
  Storm(int tills, unsigned seed);

  /// One more fault: a kill of a till, of a tillsync or of the server, or weather in the network.
  void strike();
  /// The server's disk is copied now; putBack has it be as it was then.
  void copyServer() { server_.copy(); }
  void putServerBack();
  /// The weather clears, the tills close, and all that they did has to be at the server.
  void clearAndCompare();
  void print() const;

 private:
  struct Till {
    int number;
    std::string file, shown;
    std::unique_ptr<Process> program = nullptr, sync = nullptr;
  };

  void join(Till& till);
  void startTill(Till& till);
  void startSync(Till& till) const;
  void pause(int mostMs);
  void drain(const Till& till);
  void compare(const Till& till);
  void compareSums();

  TemporaryFolder folder_;
  ThrowAwayServer server_;
  Proxy proxy_;
  std::mt19937 random_;
  std::vector<Till> tills_;
  std::map<std::string, int> faults_;
  std::size_t bills_ = 0;
};
