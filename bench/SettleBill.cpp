#include <benchmark/benchmark.h>

#include "bench/BareTill.h"
#include "bench/BenchFolder.h"
#include "bench/BenchShop.h"
#include "bench/Samples.h"
#include "bench/SyncCount.h"

namespace {

constexpr int kGoods = 10000;
constexpr int kLines = 10;

/// From the settle key to the next empty bill, for a bill of ten lines paid in cash. In turn with
/// the bare transaction.
void SettleTenLines(benchmark::State& state) {
  const BenchFolder folder;
  BenchShop shop(folder.path(), kGoods);
  BenchShop::makeDataFile(folder.path() / "bare.mdb", kGoods);
  BareTill bare(folder.path() / "bare.mdb");
  Samples till, engine;
  long syncs = 0;
  int item = 0;
  int bills = 0;
  for (auto _ : state) {
    for (int line = 0; line < kLines; ++line) {
      item = (item + 7919) % kGoods;
      shop.enter(BenchShop::barcode(item));
    }
    const long before = syncCount();
    state.SetIterationTime(till.time([&] { shop.settle(); }));
    syncs += syncCount() - before;
    engine.time([&] { bare.settle(BenchShop::itemCode(item)); });
    ++bills;
  }
  report(state, till, engine);
  state.counters["syncs"] = static_cast<double>(syncs) / bills;
}
BENCHMARK(SettleTenLines)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
