#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "link/ServerLine.h"

/// Follows the chains of the facts at the server (saleslib/JournalEntry.h), each till's from its
/// first entry, or from where its history forked. Rows are the server's, in the order of till,
/// epoch and number.
class ChainCheck {
 public:
  /// What is wrong goes to `faults`, as sentences for the owner, as long as they are not more than
  /// `most`.
  ChainCheck(std::vector<std::string>& faults, std::size_t most) : faults_(faults), most_(most) {}

  /// till, epoch, number and hash of the last entry before it
  void addEpoch(const ServerAnswer::Row& row);
  /// till, epoch, and the entry's fields in the order of its hash
  void take(const ServerAnswer::Row& row);

 private:
  using History = std::pair<std::int64_t, std::int64_t>;  ///< till and epoch
  struct Last {
    std::int64_t seq = 0;
    std::string hash = {};
  };
  void fault(const std::string& text);

  std::vector<std::string>& faults_;
  std::size_t most_;
  std::map<History, Last> beginnings_;
  History history_;
  Last last_;
};
