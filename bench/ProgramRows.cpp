#include <string>

#include "bench/Goods.h"
#include "bench/ProgramFolder.h"
#include "bench/ResidentMemory.h"
#include "bench/Run.h"
#include "bench/ShopFile.h"
#include "driver/TillDriver.h"

namespace {

double startSeconds(const std::filesystem::path& folder, Samples& samples) {
  return samples.time([&] { TillDriver(folder).waitFor("frmMenu"); });
}

/// From exec to the main menu, against a program with a window and an open data file.
void start(Run& run, benchmark::State& state, Measured& row) {
  const auto& folder = run.shops.copy(run.largest());
  const auto empty = run.shops.emptyFolder();
  installTill(folder);
  installEmptyWindow(empty->path());
  for ([[maybe_unused]] auto _ : state) {
    startSeconds(empty->path(), row.bare);
    state.SetIterationTime(startSeconds(folder, row.till));
  }
  row.claims = {{"ratio", row.ratio(), 1.5}};
}

void logIn(TillDriver& till) {
  till.waitFor("frmMenu");
  till.key("Return");
  till.waitFor("frmLogin");
  till.enter(std::to_string(shop_file::kCashier));
  till.key("Return");
  till.waitFor("frmSell");
}

void sell(TillDriver& till, int firstItem, int goods) {
  for (int line = 0; line < shop_file::kLinesPerBill; ++line) {
    till.enter(
        goods::barcode(static_cast<int>((firstItem + std::int64_t{618'033} * line) % goods)));
  }
  till.key("Return");
  till.waitFor("frmEndSell");
  till.key("Return");
  till.waitFor("frmSell");
}

double emptyWindowMiB(Run& run) {
  const auto empty = run.shops.emptyFolder();
  installEmptyWindow(empty->path(), run.shops.copy(run.largest()) / "bare.mdb");
  TillDriver window(empty->path());
  window.waitFor("frmMenu");
  return residentMiB(window.process());
}

/// A whole day at the real till, against a program with a list in a window and a full page cache.
void memory(Run& run, benchmark::State& state, Measured& row) {
  const int bills = run.samples(2'000, 40);
  const int goods = run.largest().goods;
  const auto& folder = run.shops.copy(run.largest());
  installTill(folder);
  double early = 0, late = 0;
  for ([[maybe_unused]] auto _ : state) {
    Samples day;
    TillDriver till(folder);
    logIn(till);
    state.SetIterationTime(day.time([&] {
      for (int bill = 1; bill <= bills; ++bill) {
        sell(till, static_cast<int>(bill * std::int64_t{7919} % goods), goods);
        if (bill == bills / 10) early = residentMiB(till.process());
      }
    }));
    late = residentMiB(till.process());
  }
  row.claims = {{"ratio", late / emptyWindowMiB(run), 1.7}, {"growth", late / early, 1.05}};
}

}  // namespace

void addProgramRows(Run& run) {
  const int goods = run.largest().goods;
  addRow(run, "start, exec to main menu", goods, run.samples(20, 2),
         [&run](benchmark::State& state, Measured& row) { start(run, state, row); });
  addRow(run, "memory after a day of 2,000 bills", goods, 1,
         [&run](benchmark::State& state, Measured& row) { memory(run, state, row); });
}
