#include <benchmark/benchmark.h>

#include "bench/BareTill.h"
#include "bench/BenchFolder.h"
#include "bench/BenchShop.h"
#include "bench/Samples.h"
#include "bench/SyncCount.h"

namespace {

constexpr int kGoods = 10000;
constexpr int kLinesPerBill = 20;

/// One key press: a scanned code becomes a priced line, its stock is taken, its row is durable and
/// the totals stand. In turn with the same two rows written by the bare engine.
void RingBarcode(benchmark::State& state) {
  const BenchFolder folder;
  BenchShop shop(folder.path(), kGoods);
  BenchShop::makeDataFile(folder.path() / "bare.mdb", kGoods);
  BareTill bare(folder.path() / "bare.mdb");
  Samples till, engine;
  long syncs = 0;
  int item = 0;
  int lines = 0;
  for (auto _ : state) {
    item = (item + 7919) % kGoods;
    const std::string code = BenchShop::barcode(item);
    const long before = syncCount();
    state.SetIterationTime(till.time([&] { shop.enter(code); }));
    syncs += syncCount() - before;
    engine.time([&] { bare.ring(BenchShop::itemCode(item)); });
    if (++lines % kLinesPerBill == 0) shop.settle();
  }
  report(state, till, engine);
  state.counters["syncs"] = static_cast<double>(syncs) / lines;
}
BENCHMARK(RingBarcode)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
