#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

#include "bench/Shops.h"
#include "bench/Table.h"

/// What the rows of one run share.
struct Run {
  bool full;  ///< all sizes and many samples; else the smallest shop, briefly
  Shops shops;
  Table table;

  std::vector<ShopSize> sizes() const {
    return full ? std::vector<ShopSize>(kShopSizes.begin(), kShopSizes.end())
                : std::vector<ShopSize>{kShopSizes.front()};
  }
  /// The shop for the rows that are measured at one size only.
  ShopSize largest() const { return sizes().back(); }
  /// A number of samples: the first in a full run.
  int samples(int inFull, int inBrief) const { return full ? inFull : inBrief; }
};

/// Registers a row with the benchmark library, which runs it when its name fits --benchmark_filter.
/// `body(state, row)` fills the row in as many iterations as the library counts.
template <class Body>
void addRow(Run& run, const std::string& what, int size, int samples, Body body) {
  const std::string name = size > 0 ? what + "/" + std::to_string(size) : what;
  benchmark::RegisterBenchmark(name.c_str(),
                               [&run, what, size, body](benchmark::State& state) {
                                 Measured row{what, size};
                                 body(state, row);
                                 run.table.add(std::move(row));
                               })
      ->Iterations(samples)
      ->UseManualTime()
      ->Unit(benchmark::kMicrosecond);
}

// The rows, by what they are about.
void addLookUpRows(Run& run);
void addSaleRows(Run& run);
void addJournalRows(Run& run);
void addWindowRows(Run& run);
void addReportRows(Run& run);
void addShopRows(Run& run);
void addDownRows(Run& run);
void addProgramRows(Run& run);
void addImportRow(Run& run);
