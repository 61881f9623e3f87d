#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

/// Times of one thing, in microseconds.
class Samples {
 public:
  /// Runs the work once and keeps its time; gives it in seconds.
  template <class Work>
  double time(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    add(took.count());
    return took.count() / 1e6;
  }
  void add(double microseconds) { microseconds_.push_back(microseconds); }

  std::size_t count() const { return microseconds_.size(); }
  /// 0 when there are none.
  double median() const { return at(0.5); }
  double percentile99() const { return at(0.99); }
  double most() const { return at(1.0); }

 private:
  double at(double part) const;
  std::vector<double> microseconds_;
};
