#pragma once

#include <chrono>
#include <functional>

#include "saleslib/Export.h"

/// Slows down whoever tries passwords at this till: from the third wrong one in a row on there is a
/// time in which none is looked at, longer after each further one. A right one ends it. Ends with
/// the program.
class TESSALY_API LoginBrake {
 public:
  /// A clock that nobody can set.
  using SteadyClock = std::function<std::chrono::steady_clock::time_point()>;
  explicit LoginBrake(SteadyClock now = std::chrono::steady_clock::now);

  /// How long no password is looked at, in whole seconds, rounded up; 0: the next one is.
  std::chrono::seconds wait() const;
  void wrong();
  void right();

 private:
  SteadyClock now_;
  int wrongInARow_ = 0;
  std::chrono::steady_clock::time_point until_{};
};
