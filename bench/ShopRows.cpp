#include <iostream>
#include <stdexcept>
#include <utility>

#include "bench/Enrolled.h"
#include "saleslib/ShopLink.h"
#include "sync/LiveLine.h"
#include "sync/ShopCards.h"
#include "sync/Upload.h"

namespace {

using Weather = Proxy::Weather;

constexpr std::size_t kLinesPerBill = 20;

/// Rings line after line; `between` is what is done to the network before each bill.
void ringIn(Run& run, benchmark::State& state, Measured& row, double limit,
            const std::function<void(ServerBeside&, std::size_t)>& between) {
  Enrolled shop(run);
  for ([[maybe_unused]] auto _ : state) {
    if (row.till.count() % kLinesPerBill == 0) {
      shop.tills.endBills();
      between(shop.beside, row.till.count());
    }
    const std::string code = shop.tills.next();
    shop.tills.compare(state, row, [&](BenchShop& till) { till.enter(code); });
  }
  row.claims = {{"ratio", row.ratio(), limit}, {"syncs", shop.tills.syncs(row), 1.05}};
}

void ringBeside(Run& run, benchmark::State& state, Measured& row) {
  ringIn(run, state, row, 1.05, [](ServerBeside&, std::size_t) {});
}
template <Weather kWeather>
void ringThrough(Run& run, benchmark::State& state, Measured& row) {
  ringIn(run, state, row, 1.2,
         [](ServerBeside& beside, std::size_t) { beside.network().set(kWeather); });
}
/// Half of the lines before the server is killed.
void ringWhenKilled(Run& run, benchmark::State& state, Measured& row) {
  const auto half = static_cast<std::size_t>(state.max_iterations) / 2;
  bool isKilled = false;
  ringIn(run, state, row, 1.2, [&](ServerBeside& beside, std::size_t lines) {
    if (lines >= half && !std::exchange(isKilled, true)) beside.server().kill();
  });
}

void settle(Run& run, benchmark::State& state, Measured& row) {
  Enrolled shop(run);
  for ([[maybe_unused]] auto _ : state) {
    shop.tills.ringBills();
    shop.tills.compare(state, row, [](BenchShop& till) { till.settle(); });
    shop.tills.checkpoint();
  }
  row.claims = {{"ratio", row.ratio(), 1.25}, {"syncs", shop.tills.syncs(row), 3}};
}

/// Each key of a bill once.
void pressKeys(benchmark::State& state, Measured& row, TwoTills& tills) {
  const auto press = [&](const auto& key) { tills.compare(state, row, key); };
  for (int line = 0; line < 10; ++line) {
    const std::string code = tills.next();
    press([&](BenchShop& till) { till.enter(code); });
  }
  press([](BenchShop& till) { till.lowerQuantity(); });
  press([](BenchShop& till) { till.deleteLine(); });
  press([](BenchShop& till) { till.settle(); });
  tills.checkpoint();
}

/// The longest of all key presses, whatever the weather: what waits for a network takes a hundred
/// times as long as a key.
void longestKey(Run& run, benchmark::State& state, Measured& row) {
  Enrolled shop(run);
  for ([[maybe_unused]] auto _ : state) {
    using enum Proxy::Weather;
    for (const Weather weather : {kFair, kCut, kSwallow, kLoseAnswer, kSlow}) {
      shop.beside.network().set(weather);
      for (int bill = 0; bill < 2; ++bill) pressKeys(state, row, shop.tills);
    }
    shop.beside.network().set(kFair);
    shop.beside.server().kill();
    for (int bill = 0; bill < 2; ++bill) pressKeys(state, row, shop.tills);
    shop.beside.server().start();
  }
  row.claims = {{"longest", row.till.most() / row.bare.most(), 5}};
}

/// From the question to the moment when nobody waits any more, on a line that goes dead.
void deadQuestion(Run& run, benchmark::State& state, Measured& row) {
  ServerBeside beside;
  const JoinedFile file(run, beside);
  ShopCards cards(shopLink(*file.connection).value(), file.connection->source().path, localTime);
  auto ask = [&, key = 0]() mutable {
    return cards.charge({std::to_string(++key), 1, "880001", Currency::fromYuan(1)}).kind;
  };
  for ([[maybe_unused]] auto _ : state) {
    beside.network().set(Weather::kFair);
    if (ask() == CardAuthority::Answer::kNone) throw std::runtime_error("no answer at all");
    beside.network().set(Weather::kSwallow);
    state.SetIterationTime(row.till.time([&] {
      if (ask() != CardAuthority::Answer::kNone) throw std::runtime_error("an answer from nobody");
    }));
  }
  const double patience = std::chrono::duration<double, std::micro>(LiveLine::kPatience).count();
  row.claims = {{"of the patience", row.till.most() / patience, 1.05}};
}

/// The same entries as rows of a table, and nothing made of them.
class BareTable {
 public:
  explicit BareTable(ThrowAwayServer& server) : line_(server.owner()) {
    const char* const table =
        "create table bare (seq bigint primary key, time text, till bigint, operator bigint,"
        " approver bigint, kind text, touches text, body text, hash text)";
    if (!line_.ask(table).isDone()) throw std::runtime_error("no table");
  }
  void bring(Connection& till) {
    for (;;) {
      const std::vector<JournalEntry> entries = nextEntries(till, place_);
      if (entries.empty()) return;
      const char* const insert =
          "insert into bare select * from jsonb_to_recordset($1) as x(seq bigint, time text, till"
          " bigint, operator bigint, approver bigint, kind text, touches text, body text, hash "
          "text)";
      if (!line_.ask(insert, {entriesText(entries)}).isDone())
        throw std::runtime_error("nothing inserted");
      place_ = {entries.back().seq, entries.back().hash};
    }
  }

 private:
  ServerLine line_;
  Place place_;
};

/// A hundred bills that the network kept back, from the first question until the server has them.
void backlog(Run& run, benchmark::State& state, Measured& row) {
  constexpr int kBills = 100, kLines = 5;
  Enrolled shop(run);
  shop.beside.network().set(Weather::kCut);
  Connection& file = *shop.tills.other().pos().gConn;
  ServerLine line(shop.beside.till());
  Upload upload(file, line);
  const auto bring = [&] {
    while (upload.step() == Upload::Outcome::kWent) continue;
  };
  BareTable bare(shop.beside.server());
  bring();
  bare.bring(file);
  for ([[maybe_unused]] auto _ : state) {
    for (int bill = 0; bill < kBills; ++bill) {
      for (int each = 0; each < kLines; ++each) shop.tills.other().enter(shop.tills.next());
      shop.tills.other().settle();
    }
    state.SetIterationTime(row.till.time(bring));
    row.bare.time([&] { bare.bring(file); });
  }
  shop.beside.await(file);
  row.claims = {{"ratio", row.ratio(), 8}};
}

/// After a day, beside a till that rings.
void memory(Run& run, benchmark::State& state, Measured& row) {
  const int bills = run.samples(2'000, 40);
  Enrolled shop(run);
  BenchShop& till = shop.tills.other();
  Samples day;
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(day.time([&] {
      for (int bill = 0; bill < bills; ++bill) {
        till.enter(shop.tills.next());
        till.settle();
      }
      shop.beside.await(*till.pos().gConn);
    }));
  }
  row.claims = {{"MiB", residentMiB(shop.tillsync()), 20}};
}

}  // namespace

void addShopRows(Run& run) {
  if (!ThrowAwayServer::isInstalled()) {
    std::cerr << "no PostgreSQL (postgresql-15): the rows of a shop's server are left out"
              << std::endl;
    return;
  }
  const int size = TwoTills::kSize.goods;
  const auto add = [&](const char* what, int samples, auto body) {
    addRow(run, what, size, samples,
           [&run, body](benchmark::State& state, Measured& row) { body(run, state, row); });
  };
  const int lines = run.samples(3'000, 300);
  add("ringing a line, in a shop with a server", lines, &ringBeside);
  add("ringing a line, network cut", lines, &ringThrough<Weather::kCut>);
  add("ringing a line, network swallows", lines, &ringThrough<Weather::kSwallow>);
  add("ringing a line, server 20 ms away", lines, &ringThrough<Weather::kSlow>);
  add("ringing a line, server killed", lines, &ringWhenKilled);
  add("settling ten lines, in a shop with a server", run.samples(500, 60), &settle);
  add("any key of a bill, in any weather", run.samples(20, 2), &longestKey);
  add("a card's question, line dead", run.samples(10, 2), &deadQuestion);
  add("backlog of 100 bills", run.samples(30, 3), &backlog);
  add("memory of tillsync", 1, &memory);
}
