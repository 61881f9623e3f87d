#include <memory>

#include "bench/BareTill.h"
#include "bench/BenchShop.h"
#include "bench/Goods.h"
#include "bench/Run.h"
#include "bench/SyncCount.h"
#include "store/Connection.h"

namespace {

constexpr int kLines = 10;
constexpr int kMember = 7;

/// A till and a bare engine that do the same in turn, so that both meet the same state of the disk.
class Pair {
 public:
  Pair(Run& run, ShopSize size)
      : till(run.shops.copy(size)), bare(run.shops.copy(size) / "bare.mdb"), goods_(size.goods) {}

  /// The next item's number.
  int next() { return item_ = static_cast<int>((item_ + std::int64_t{618'033}) % goods_); }
  void ringLines(int lines) {
    for (int line = 0; line < lines; ++line) till.enter(goods::barcode(next()));
  }
  /// As the till does when nobody waits.
  void checkpoint() {
    till.pos().gConn->checkpoint();
    bare.checkpoint();
  }

  BenchShop till;
  BareTill bare;

 private:
  int goods_;
  int item_ = 0;
};

double perOne(const Syncs& syncs, long count) {
  return static_cast<double>(syncs.all) / static_cast<double>(count);
}

/// From Enter behind a code to the stored line and the new totals.
void ring(Run& run, ShopSize size, benchmark::State& state, Measured& row) {
  constexpr int kLinesPerBill = 20;
  Pair pair(run, size);
  Syncs syncs;
  long lines = 0;
  for ([[maybe_unused]] auto _ : state) {
    const int item = pair.next();
    const std::string code = goods::barcode(item);
    const std::string itemCode = goods::itemCode(item);
    const Syncs before = syncCount();
    state.SetIterationTime(row.till.time([&] { pair.till.enter(code); }));
    syncs += syncCount() - before;
    row.bare.time([&] { pair.bare.ring(itemCode); });
    if (++lines % kLinesPerBill != 0) continue;
    pair.till.settle();
    pair.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 1.5}, {"syncs", perOne(syncs, lines), 1.05}};
}

/// From the confirmed payment of a ten-line bill of a member to the next bill.
void settle(Run& run, ShopSize size, benchmark::State& state, Measured& row) {
  Pair pair(run, size);
  Syncs syncs;
  long bills = 0;
  for ([[maybe_unused]] auto _ : state) {
    pair.till.attach(kMember);
    pair.ringLines(kLines);
    const Syncs before = syncCount();
    state.SetIterationTime(row.till.time([&] { pair.till.settle(); }));
    syncs += syncCount() - before;
    ++bills;
    row.bare.time([&] {
      pair.bare.settle(kMember);
      pair.bare.openBill();
    });
    pair.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 2}, {"syncs", perOne(syncs, bills), 3}};
}

/// Ten lines and their settlement, in cash, against eleven transactions.
void wholeSale(Run& run, ShopSize size, benchmark::State& state, Measured& row) {
  Pair pair(run, size);
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(row.till.time([&] {
      pair.ringLines(kLines);
      pair.till.settle();
    }));
    row.bare.time([&] {
      for (int line = 0; line < kLines; ++line) pair.bare.ring(goods::itemCode(pair.next()));
      pair.bare.settle();
    });
    pair.bare.openBill();
    pair.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 2}};
}

}  // namespace

void addSaleRows(Run& run) {
  const auto add = [&run](const char* what, int samples, auto body) {
    for (const ShopSize size : run.sizes()) {
      addRow(run, what, size.goods, samples,
             [&run, size, body](benchmark::State& state, Measured& row) {
               body(run, size, state, row);
             });
    }
  };
  add("ringing a line, no window", run.samples(3'000, 200), &ring);
  add("settling ten lines with a member", run.samples(500, 30), &settle);
  add("ten-line cash sale, no window", run.samples(300, 20), &wholeSale);
}
