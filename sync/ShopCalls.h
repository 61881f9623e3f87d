#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/ServerLine.h"
#include "saleslib/CardAuthority.h"
#include "sync/DownPlace.h"
#include "sync/Facts.h"

/// What a till asks the shop's server, one function of its each (server/).
class ShopCalls {
 public:
  /// The line outlives the calls.
  ShopCalls(ServerLine& line, int till) : line_(line), till_(std::to_string(till)) {}

  /// How far the server is with this till.
  struct Standing {
    ServerAnswer::Kind kind = ServerAnswer::kUnknown;
    std::string fault = {}, state = {};  ///< of a refusal or an unknown answer
    int epoch = 0;                       ///< of an answer to hello
    Place place = {};                    ///< the last entry that the server has
  };
  /// What the till tells of itself each time: bills still to come, and its clock.
  struct Told {
    std::int64_t pending = 0;
    std::int64_t clock = 0;  ///< seconds since 1970, UTC
  };
  Standing hello(const Told& told);
  /// Entries behind the one with the hash `before`.
  Standing put(int epoch, const std::string& before, const std::vector<JournalEntry>& entries,
               const Told& told);

  struct Epoch {
    ServerAnswer::Kind kind = ServerAnswer::kUnknown;
    std::string fault = {}, state = {};
    int epoch = 0;
    std::int64_t highestBill = 0;
  };
  /// The history that the server goes on with: one that has an entry of these, or a new one.
  Epoch newEpoch(int epoch, const std::vector<Place>& own);

  /// A row that changed at the server, and the place behind which the next ones are.
  struct Change {
    std::string tx, tbl, key;
    std::string body;  ///< JSON; empty: the row is gone
  };
  struct Changes {
    ServerAnswer::Kind kind = ServerAnswer::kUnknown;
    std::string fault = {}, state = {};
    std::vector<Change> rows = {};
    bool isLast = false;                  ///< there are no more
    DownPlace next = {};                  ///< behind these rows
    std::vector<std::string> whole = {};  ///< tables that the till has no other rows of
  };
  /// What changed behind that place, at most so many rows; while the till compares everything, what
  /// there is. A refusal TL007: everything is to be compared anew.
  Changes changes(const DownPlace& place, std::size_t most);

  /// Takes the amount from the card, once however often it is asked for. Line and answer have that
  /// patience together.
  CardAuthority::Answer charge(const CardAuthority::Charge& charge,
                               ServerLine::Milliseconds patience);

  ServerLine& line() { return line_; }
  const std::string& till() const { return till_; }

 private:
  Changes walk(const DownPlace& place, std::size_t most);
  static Standing standing(const ServerAnswer& answer);

  ServerLine& line_;
  std::string till_;
};
