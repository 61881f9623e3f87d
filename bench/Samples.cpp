#include "bench/Samples.h"

#include <algorithm>

double Samples::at(double part) const {
  if (microseconds_.empty()) return 0;
  std::vector<double> sorted = microseconds_;
  std::sort(sorted.begin(), sorted.end());
  return sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1))];
}

void report(benchmark::State& state, const Samples& till, const Samples& bare) {
  state.counters["till_us"] = till.median();
  state.counters["till_p99"] = till.percentile99();
  state.counters["till_max"] = till.most();
  state.counters["bare_us"] = bare.median();
  state.counters["ratio"] = till.median() / bare.median();
}
