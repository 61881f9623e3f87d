#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

/// Times of one thing, in microseconds.
class Samples {
 public:
  template <class Work>
  double time(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    microseconds_.push_back(took.count());
    return took.count() / 1e6;
  }
  double median() const { return at(0.5); }
  double percentile99() const { return at(0.99); }
  double most() const { return at(1.0); }

 private:
  double at(double part) const;
  std::vector<double> microseconds_;
};

/// Adds the counters that every row has: times of the till, of the bare engine, and their ratio.
void report(benchmark::State& state, const Samples& till, const Samples& bare);
