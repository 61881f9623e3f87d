#pragma once

#include <chrono>

/// Runs from its making.
class Stopwatch {
 public:
  double microseconds() const {
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start_)
        .count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};
