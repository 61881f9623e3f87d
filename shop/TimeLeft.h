#pragma once

#include <chrono>
#include <string>

/// How long a piece of work will still take, by what it took so far.
class TimeLeft {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  explicit TimeLeft(Moment begin) : begin_(begin) {}

  /// "45%，还要约 12 秒" when that part, 0 ... 1, is done; the percentage alone while there is
  /// nothing to go by.
  std::string text(double part, Moment now) const;

 private:
  Moment begin_;
};
