#include <QListWidget>
#include <fstream>

#include "base/Failure.h"
#include "bench/BareTill.h"
#include "bench/BenchShop.h"
#include "bench/Goods.h"
#include "bench/Run.h"
#include "bench/SaleWindow.h"
#include "bench/Stopwatch.h"
#include "platform/QtText.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/FragmentPieces.h"

namespace {

constexpr int kLines = 10;
constexpr int kLinesPerBill = 20;

/// The real window on the largest shop.
struct Till {
  explicit Till(Run& run) : window(run.shops.copy(run.largest())), goods(run.largest().goods) {}

  int next() { return item = static_cast<int>((item + std::int64_t{618'033}) % goods); }
  void ring() {
    window.type(goods::barcode(next()));
    window.ring();
  }
  void ringLines(int lines) {
    for (int line = 0; line < lines; ++line) ring();
  }

  SaleWindow window;
  int goods;
  int item = 0;
};

/// Until the row has been painted, which comes before the rest of the screen.
void ring(Run& run, benchmark::State& state, Measured& row) {
  Till till(run);
  BareTill bare(run.shops.copy(run.largest()) / "bare.mdb");
  Syncs syncs;
  long lines = 0;
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      const int item = till.next();
      till.window.type(goods::barcode(item));
      const SaleWindow::Rung rung = till.window.ring();
      row.till.add(rung.microseconds);
      state.SetIterationTime(rung.microseconds / 1e6);
      syncs += rung.syncs;
      row.bare.time([&] { bare.ring(goods::itemCode(item)); });
      if (++lines % kLinesPerBill == 0) till.window.settle();
    }
    if (lines % kLinesPerBill != 0) till.window.settle();
  });
  row.claims = {{"ratio", row.ratio(), 1.3},
                {"syncs", static_cast<double>(syncs.all) / static_cast<double>(lines), 1.05},
                {"checkpoints", static_cast<double>(syncs.dataFile), 0}};
}

/// Until the whole screen rests.
void ringAndRest(Run& run, benchmark::State& state, Measured& row) {
  Till till(run);
  BareTill bare(run.shops.copy(run.largest()) / "bare.mdb");
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      const int item = till.next();
      till.window.type(goods::barcode(item));
      state.SetIterationTime(row.till.time([&] { till.window.ring(); }));
      row.bare.time([&] { bare.ring(goods::itemCode(item)); });
      if (row.till.count() % kLinesPerBill == 0) till.window.settle();
    }
    if (row.till.count() % kLinesPerBill != 0) till.window.settle();
  });
  row.claims = {{"ratio", row.ratio(), 2.5}};
}

/// The hundredth line of a bill, against the first.
void longBill(Run& run, benchmark::State& state, Measured& row) {
  constexpr int kLongBill = 100;
  Till till(run);
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      for (int line = 1; line <= kLongBill; ++line) {
        till.window.type(goods::barcode(till.next()));
        const auto press = [&] { till.window.ring(); };
        if (line == 1) {
          row.bare.time(press);
        } else if (line == kLongBill) {
          state.SetIterationTime(row.till.time(press));
        } else {
          press();
        }
      }
      till.window.settle();
    }
  });
  row.claims = {{"growth", row.ratio(), 1.2}};
}

/// The last settlements of a long day, against the first but for those that fill the caches. Both
/// are taken against the engine's own of the same moment: minutes lie between them.
void longDay(Run& run, benchmark::State& state, Measured& row) {
  const int bills = run.samples(1'000, 200);
  const int compared = bills / 10;
  Till till(run);
  BareTill bare(run.shops.copy(run.largest()) / "bare.mdb");
  Samples early, late;
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      for (int bill = 1; bill <= bills; ++bill) {
        till.ringLines(2);
        Stopwatch since;
        till.window.settle([&] { since = Stopwatch(); });
        const bool isLate = bill > bills - compared;
        if (!isLate && (bill <= compared || bill > 2 * compared)) continue;
        (isLate ? row.till : row.bare).add(since.microseconds());
        (isLate ? late : early).time([&] {
          bare.settle();
          bare.openBill();
        });
      }
      state.SetIterationTime(row.till.median() / 1e6);
    }
  });
  row.claims = {{"growth", row.ratio() / (late.median() / early.median()), 1.2}};
}

/// A folder whose till works on the copy of the data file that is kept for the engine alone.
std::unique_ptr<BenchFolder> tillOnCopy(Run& run) {
  auto folder = run.shops.emptyFolder();
  std::ofstream(folder->path() / "Config.ini")
      << "[Database]\nPath=" << (run.shops.copy(run.largest()) / "bare.mdb").string()
      << ";Jet OLEDB:Database Password=" << kBuiltInPassword << '\n';
  return folder;
}

/// Ten lines and their settlement, against the same without windows.
void wholeSale(Run& run, benchmark::State& state, Measured& row) {
  Till till(run);
  const auto folder = tillOnCopy(run);
  BenchShop windowless(folder->path());
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      state.SetIterationTime(row.till.time([&] {
        till.ringLines(kLines);
        till.window.settle();
      }));
      row.bare.time([&] {
        for (int line = 0; line < kLines; ++line) windowless.enter(goods::barcode(till.next()));
        windowless.settle();
      });
      windowless.pos().gConn->checkpoint();
    }
  });
  row.claims = {{"ratio", row.ratio(), 3}};
}

/// The toolkit's list of the texts that a query gives, until it has been painted.
void showToolkitsList(BareEngine::Statement& query, PaintWatch& paint) {
  QListWidget list;
  list.setObjectName("list");
  for (const auto& row : query.read(goods::kLooseGoods)) list.addItem(qtText(row.front()));
  ensure(list.count() == goods::kLooseGoods, "the bare list shows what the menu shows");
  list.setWindowState(Qt::WindowMaximized);
  list.setAttribute(Qt::WA_ShowWithoutActivating);  // the keyboard stays with the sale window
  paint.untilPainted("list", [&list] { list.show(); });
}

/// A fragment that ten thousand goods have, until their menu has been painted; against the
/// toolkit's list of the same goods, selected by the same fragment.
void longMenu(Run& run, benchmark::State& state, Measured& row) {
  Till till(run);
  PaintWatch paint;
  BareEngine engine(run.shops.copy(run.largest()) / "bare.mdb");
  BareEngine::Statement query(engine,
                              "select spmc || ' ' || sptm from tmda where ggxh like ?1 and tmda.id"
                              " in (select docid from tmda_fragments where ggxh match ?2)");
  const std::string like = std::string("%") + goods::kLoose + '%', match = *fragmentQuery(like);
  query.bind(1, like).bind(2, match);
  till.window.open([&] {
    for ([[maybe_unused]] auto _ : state) {
      row.bare.time([&] { showToolkitsList(query, paint); });
      till.window.compose(goods::kLoose);
      const Stopwatch since;
      till.window.ringFromMenu([&] { row.till.add(since.microseconds()); });
      state.SetIterationTime(row.till.median() / 1e6);
      till.window.settle();
    }
  });
  row.claims = {{"ratio", row.ratio(), 1}};
}

}  // namespace

void addWindowRows(Run& run) {
  const auto add = [&run](const char* what, int samples, auto body) {
    addRow(run, what, run.largest().goods, samples,
           [&run, body](benchmark::State& state, Measured& row) { body(run, state, row); });
  };
  add("ringing a line, key press to painted row", run.samples(3'000, 100), &ring);
  add("ringing a line, key press to whole screen", run.samples(3'000, 100), &ringAndRest);
  add("100th line of a bill, against the first", run.samples(50, 10), &longBill);
  add("1000th bill of a day, against the first", 1, &longDay);
  add("ten-line cash sale through the windows", run.samples(300, 30), &wholeSale);
  add("menu of 10,000 matches", run.samples(50, 5), &longMenu);
}
