#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "ThrowAwayServer.h"
#include "storm/Figures.h"
#include "storm/Proxy.h"
#include "storm/Tills.h"

/// A shop of several tills in bad weather. Throws std::runtime_error naming what is lost, doubled
/// or wrong.
class Storm {
 public:
  Storm(int tills, bool byKeys, unsigned seed);

  /// One more fault: a kill of a till, of a tillsync or of the server, or weather in the network.
  void strike();

  /// From now on the server answers before it has written; forget has it lose that.
  void letServerForget();
  void forget();
  /// Kills the server and starts it.
  void killServer();
  /// How many entries it had told that it has them, and forgot.
  long forgotten() const { return forgotten_; }

  /// The server's disk is copied now; putServerBack has it be as it was then.
  void copyServer() { server_.copy(); }
  void putServerBack();
  /// The same for the file of the first till, which has brought everything before it is put back.
  void copyTill();
  void putTillBack();

  /// The weather clears, the tills close, and all that they did has to be at the server.
  void clearAndCompare();
  void print() const;

 private:
  unsigned draw() { return static_cast<unsigned>(random_()); }
  void pause(unsigned mostMs);
  void blow();
  std::string applied();
  void drain(StormTill& till);
  void compareShown(const StormTill& till);
  void compareCharges();
  void requireFollowed(StormTill& till, const Figures& shop);
  Figures ownFigures(const StormTill& till) const;

  TemporaryFolder folder_;
  ThrowAwayServer server_;
  Proxy proxy_;
  std::mt19937 random_;
  std::vector<std::unique_ptr<StormTill>> tills_;
  Figures expected_;  ///< but for what the tills' files say now
  std::map<std::string, int> faults_;
  long forgotten_ = 0;
  std::size_t bills_ = 0;
  std::string charges_;
};
