#include <stdexcept>

#include "bench/TwoTills.h"
#include "saleslib/ClsSysParam.h"

namespace {

constexpr std::size_t kLinesPerBill = 20;

/// The other till keeps a journal.
void keepJournal(Connection& shop) {
  ClsSysParam parameters;
  parameters.Conn(shop);
  if (!parameters.set("Journal", "1").empty()) throw std::runtime_error("no journal was begun");
}

void ring(Run& run, benchmark::State& state, Measured& row) {
  TwoTills tills(run, &keepJournal);
  for ([[maybe_unused]] auto _ : state) {
    const std::string code = tills.next();
    tills.compare(state, row, [&](BenchShop& till) { till.enter(code); });
    if (row.till.count() % kLinesPerBill == 0) tills.endBills();
  }
  row.claims = {{"ratio", row.ratio(), 1.15}, {"syncs", tills.syncs(row), 1.05}};
}

/// A correction of the line that was rung last, which is an entry of its own in its transaction.
void correct(Run& run, benchmark::State& state, Measured& row, void (BenchShop::*correction)()) {
  TwoTills tills(run, &keepJournal);
  for ([[maybe_unused]] auto _ : state) {
    const std::string code = tills.next();
    for (BenchShop* till : {&tills.other(), &tills.alone()}) till->enter(code);
    tills.compare(state, row, [&](BenchShop& till) { (till.*correction)(); });
    if (row.till.count() % kLinesPerBill == 0) tills.endBills();
  }
  row.claims = {{"ratio", row.ratio(), 1.4}, {"syncs", tills.syncs(row), 1.05}};
}
void deleteLine(Run& run, benchmark::State& state, Measured& row) {
  correct(run, state, row, &BenchShop::deleteLine);
}
void lowerQuantity(Run& run, benchmark::State& state, Measured& row) {
  correct(run, state, row, &BenchShop::lowerQuantity);
}

void settle(Run& run, benchmark::State& state, Measured& row) {
  TwoTills tills(run, &keepJournal);
  for ([[maybe_unused]] auto _ : state) {
    tills.ringBills();
    tills.compare(state, row, [](BenchShop& till) { till.settle(); });
    tills.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 1.5}, {"syncs", tills.syncs(row), 3}};
}

}  // namespace

void addJournalRows(Run& run) {
  const int size = TwoTills::kSize.goods;
  const auto add = [&](const char* what, int samples, auto body) {
    addRow(run, what, size, samples,
           [&run, body](benchmark::State& state, Measured& row) { body(run, state, row); });
  };
  add("ringing a line, journal kept", run.samples(3'000, 300), &ring);
  add("deleting a line, journal kept", run.samples(1'000, 100), &deleteLine);
  add("lowering a quantity, journal kept", run.samples(1'000, 100), &lowerQuantity);
  add("settling ten lines, journal kept", run.samples(500, 60), &settle);
}
