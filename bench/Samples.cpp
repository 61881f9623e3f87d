#include "bench/Samples.h"

#include <algorithm>

double Samples::at(double part) const {
  if (microseconds_.empty()) return 0;
  std::vector<double> sorted = microseconds_;
  std::sort(sorted.begin(), sorted.end());
  return sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size() - 1))];
}
