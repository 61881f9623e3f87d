#include <unistd.h>

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "bench/BenchShop.h"
#include "bench/Goods.h"
#include "bench/Run.h"
#include "bench/SyncCount.h"
#include "store/Connection.h"

namespace {

namespace fs = std::filesystem;

constexpr int kLines = 10;
constexpr int kMember = 7;

/// Two tills of the same shop that do the same in turn, of which one keeps a journal.
class Pair {
 public:
  explicit Pair(Run& run)
      : folder_(twin(run)),
        without(run.shops.copy(kSize)),
        keeping(std::make_unique<BenchShop>(folder_->path())) {
    if (!keeping->pos().gSysParam.set("Journal", "1").empty())
      throw std::runtime_error("no journal was begun");
    checkpoint();
  }

  /// The next item's barcode.
  std::string next() {
    item_ = static_cast<int>((item_ + std::int64_t{618'033}) % kSize.goods);
    return goods::barcode(item_);
  }
  void ringBills() {
    without.attach(kMember);
    keeping->attach(kMember);
    for (int line = 0; line < kLines; ++line) {
      const std::string code = next();
      without.enter(code);
      keeping->enter(code);
    }
  }
  void endBills() {
    if (!without.sale().isEmpty()) {
      keeping->settle();
      without.settle();
    }
    checkpoint();
  }
  void checkpoint() {
    without.pos().gConn->checkpoint();
    keeping->pos().gConn->checkpoint();
  }

 private:
  static constexpr ShopSize kSize = kShopSizes.front();

  /// A copy of the shop for the other till, before the first one opens it.
  static std::unique_ptr<BenchFolder> twin(Run& run) {
    auto folder = run.shops.emptyFolder();
    const fs::path inside = "data/POS.mdb";
    fs::create_directory(folder->path() / "data");
    fs::copy_file(run.shops.copy(kSize) / inside, folder->path() / inside);
    sync();
    return folder;
  }

  std::unique_ptr<BenchFolder> folder_;
  int item_ = 0;

 public:
  BenchShop without;
  std::unique_ptr<BenchShop> keeping;
};

/// Times the work of the till that keeps a journal and counts its syncs, against the other's.
template <class Work>
void compare(Pair& pair, benchmark::State& state, Measured& row, Syncs& syncs, const Work& work) {
  const Syncs before = syncCount();
  state.SetIterationTime(row.till.time([&] { work(*pair.keeping); }));
  syncs += syncCount() - before;
  row.bare.time([&] { work(pair.without); });
}

double perOne(const Syncs& syncs, const Measured& row) {
  return static_cast<double>(syncs.all) / static_cast<double>(row.till.count());
}

constexpr std::size_t kLinesPerBill = 20;

void ring(Run& run, benchmark::State& state, Measured& row) {
  Pair pair(run);
  Syncs syncs;
  for ([[maybe_unused]] auto _ : state) {
    const std::string code = pair.next();
    compare(pair, state, row, syncs, [&](BenchShop& till) { till.enter(code); });
    if (row.till.count() % kLinesPerBill != 0) continue;
    pair.endBills();
  }
  row.claims = {{"ratio", row.ratio(), 1.15}, {"syncs", perOne(syncs, row), 1.05}};
}

/// A correction of the line that was rung last, which is an entry of its own in its transaction.
void correct(Run& run, benchmark::State& state, Measured& row, void (BenchShop::*correction)()) {
  Pair pair(run);
  Syncs syncs;
  for ([[maybe_unused]] auto _ : state) {
    const std::string code = pair.next();
    for (BenchShop* till : {pair.keeping.get(), &pair.without}) till->enter(code);
    compare(pair, state, row, syncs, [&](BenchShop& till) { (till.*correction)(); });
    if (row.till.count() % kLinesPerBill == 0) pair.endBills();
  }
  row.claims = {{"ratio", row.ratio(), 1.4}, {"syncs", perOne(syncs, row), 1.05}};
}
void deleteLine(Run& run, benchmark::State& state, Measured& row) {
  correct(run, state, row, &BenchShop::deleteLine);
}
void lowerQuantity(Run& run, benchmark::State& state, Measured& row) {
  correct(run, state, row, &BenchShop::lowerQuantity);
}

void settle(Run& run, benchmark::State& state, Measured& row) {
  Pair pair(run);
  Syncs syncs;
  for ([[maybe_unused]] auto _ : state) {
    pair.ringBills();
    compare(pair, state, row, syncs, [](BenchShop& till) { till.settle(); });
    pair.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 1.5}, {"syncs", perOne(syncs, row), 3}};
}

}  // namespace

void addJournalRows(Run& run) {
  const int size = kShopSizes.front().goods;
  const auto add = [&](const char* what, int samples, auto body) {
    addRow(run, what, size, samples,
           [&run, body](benchmark::State& state, Measured& row) { body(run, state, row); });
  };
  add("ringing a line, journal kept", run.samples(3'000, 300), &ring);
  add("deleting a line, journal kept", run.samples(1'000, 100), &deleteLine);
  add("lowering a quantity, journal kept", run.samples(1'000, 100), &lowerQuantity);
  add("settling ten lines, journal kept", run.samples(500, 60), &settle);
}
