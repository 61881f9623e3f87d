#pragma once

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "Disk.h"

/// What is on the disk when the power goes. Begins with the files as they were when the recording
/// began (all of that counts as synced) and goes through the recorded events one by one; at every
/// one of them the power can be cut.
class PowerCut {
 public:
  /// Path and bytes.
  using Files = std::map<std::string, std::string>;
  /// What becomes of the writes that no sync has made durable. A disk may have written none of
  /// them, all of them, or some in any order, one of them in part (whole sectors).
  enum class Unsynced { kLost, kKept, kSome };

  PowerCut(const std::vector<DiskEvent>& events, Files before);

  /// Passes the next event; false behind the last one.
  bool next();
  /// Number of events passed.
  std::size_t passed() const { return passed_; }
  /// Whether there are writes that no sync has made durable.
  bool anyUnsynced() const { return !unsynced_.empty(); }
  /// The files after a cut here.
  Files files(Unsynced fate, std::mt19937& random) const;

 private:
  static void apply(const DiskEvent& event, Files& files, std::size_t most);

  const std::vector<DiskEvent>& events_;
  std::size_t passed_ = 0;
  Files durable_;
  std::vector<const DiskEvent*> unsynced_;
};
