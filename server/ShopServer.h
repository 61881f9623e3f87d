#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "server/JoinCode.h"

class ServerLine;

/// The shop's server as its owner works on it, logged in as somebody who may make roles. All of it
/// throws Failure, with the server's words, when it refuses or does not answer.
class ShopServer {
 public:
  /// The line outlives this.
  explicit ShopServer(ServerLine& line) : line_(line) {}

  /// Makes the shop's tables and functions, or brings them up to date; gives how many steps were
  /// taken. `authority` is the certificate (PEM) that tills are to know the server by; empty leaves
  /// it as it is.
  int init(const std::string& authority);

  struct Steps {
    int before = 0, after = 0;
  };
  /// Brings a shop's tables and functions up to this program's, and makes the rows anew from the
  /// facts, since a newer version may read in them what the one before did not. All of it or
  /// nothing; the tills wait meanwhile, and sell on.
  Steps upgrade();
  /// Throws Failure for a shop of an older version, for what that cannot do.
  void requireCurrent();

  /// Adds up what moved in stock and on cards longer ago than that, in place, so that sums over it
  /// stay quick; in small steps beside the selling tills. Gives how many rows that saved.
  std::int64_t fold(int days);

  /// A second server, which repeats what the first one writes, before it takes its place.
  struct Standby {
    bool isStandby = false;
    bool hearsFirst = false;   ///< the first one is still sending, as far as is noticed
    std::string lastHeard;     ///< when it sent something last, in this server's time; empty: never
    bool wasAwaited = false;   ///< the first one's commits waited for a second server
    std::string lastRepeated;  ///< its latest commit here, in this server's time; empty: none
  };
  Standby standby();
  /// Makes it the first one, which waits for no other. The one before must never write again.
  void promote();

  /// Makes a till's place and the code that it joins with within a day. One that has joined before
  /// is let in anew only `again`; until then the one that was is shut out.
  JoinCode addTill(int till, bool again);
  /// The till is shut out at once and for good; what it brought stays.
  void revoke(int till);

  struct Till {
    int till = 0, epoch = 0;
    std::string status;  ///< "joined", "code", "expired", "revoked"
    std::int64_t applied = 0, pending = 0, faults = 0;
    std::optional<std::int64_t> silentSeconds;  ///< since the last contact, if there was one
    std::optional<std::int64_t> clockSeconds;   ///< how far its clock was ahead then
    std::string version;
  };
  std::vector<Till> tills();

  struct Checked {
    std::int64_t facts = 0, bills = 0;
    std::vector<std::string> faults;  ///< sentences for the owner
  };
  /// Follows each till's chain from its beginning, adds up each bill, and holds the rows against
  /// what the facts make of them; with `rebuild` the rows become that. The tills wait meanwhile,
  /// and sell on.
  Checked check(bool rebuild);

  /// What a till that joins is given.
  struct Joined {
    int epoch = 0;
    std::int64_t highestBill = 0;
    std::string authority;
  };
  /// A till joins, logged in by its code: from now on its role's password is the one given.
  static Joined enrol(ServerLine& line, int till, const std::string& password);

 private:
  void followChains(Checked& found);
  int stepsDone();
  static std::string stepsBehind(int done);

  ServerLine& line_;
};
