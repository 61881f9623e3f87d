#include <QTableView>
#include <QTest>
#include <QThread>
#include <limits>
#include <string>

#include "bench/BareEngine.h"
#include "bench/BenchShop.h"
#include "bench/PaintWatch.h"
#include "bench/Run.h"
#include "bench/ShopFile.h"
#include "bench/Stopwatch.h"
#include "bench/ToolkitTable.h"
#include "reports/ResultModel.h"
#include "reports/frmCount.h"
#include "reports/frmSearch.h"
#include "shell/DateField.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"

namespace {

/// The statement of the sales query, in the engine's form.
constexpr const char* kSoldLines =
    "select sellproducts.insert_Date, sellproducts.sellId, sellproducts.bm, sellproducts.name, "
    "unit,"
    " sellproducts.amount, sellproducts.price, sellproducts.discount, sellproducts.money,"
    " sellproducts.in_price, sellproducts.splbmc, spda.f_sptm from sellProducts inner join spda on"
    " sellproducts.bm = spda.f_spbm where insert_date > ? and insert_date <= ?"
    " order by sellId, insert_Date";

constexpr std::size_t kFirstPage = 64;  // the lines that the till shows first
constexpr std::size_t kAllLines = std::numeric_limits<std::size_t>::max();

constexpr const char* kBillsOfDay = "select * from sell where sell_time between ? and ?";

/// The sales query's window on a shop.
class SearchWindow {
 public:
  explicit SearchWindow(const std::filesystem::path& folder)
      : pos_(openTill(folder)), form_(*pos_) {
    paint_.untilPainted("ListView1", [this] { form_.show(); });
  }

  void setPeriod(const Date& first, const Date& last) {
    form_.findChild<DateField*>("DtBegin")->setDate(first);
    form_.findChild<DateField*>("Dtfinish")->setDate(last);
    QCoreApplication::processEvents();
  }
  /// Starts the query and waits until its first lines, or all of them, have been painted.
  void search(bool all) {
    const auto press = [this] { QTest::keyClick(form_.windowHandle(), Qt::Key_Return); };
    paint_.untilPainted("ListView1", press);
    while (model().rowCount() == 0 || (all && model().isFilling())) {
      paint_.untilPainted("ListView1", [] {});
    }
  }
  void finish() {
    while (model().isFilling()) QCoreApplication::processEvents();
  }
  int lines() const { return model().rowCount() - 1; }
  QSize listSize() const { return form_.findChild<QTableView*>("ListView1")->size(); }

 private:
  ResultModel& model() const { return *form_.findChild<ResultModel*>(); }

  std::unique_ptr<posMod> pos_;
  frmSearch form_;
  PaintWatch paint_;
};

/// The same question put to the engine alone, beside the window, and the answer in the toolkit's
/// own table of the same size.
class BareSearch {
 public:
  BareSearch(const std::filesystem::path& dataFile, QSize size)
      : engine_(dataFile), select_(engine_, kSoldLines), table_(size) {
    reader_.moveToThread(&thread_);
    thread_.start();
  }
  ~BareSearch() {
    thread_.quit();
    thread_.wait();
  }
  BareSearch(const BareSearch&) = delete;
  BareSearch& operator=(const BareSearch&) = delete;

  /// Until the first `most` lines have been painted; gives how many they were.
  std::size_t search(const Date& first, const Date& last, std::size_t most) {
    const std::string begin = storedText({first}), end = storedText({last, 23, 59, 59});
    std::size_t lines = 0;
    const auto read = [&] {
      Texts rows = select_.bind(1, begin).bind(2, end).read(most);
      lines = rows.size();
      QMetaObject::invokeMethod(
          &table_, [this, rows = std::move(rows)]() mutable { table_.fill(std::move(rows)); });
    };
    paint_.untilPainted("list", [&] { QMetaObject::invokeMethod(&reader_, read); });
    return lines;
  }

 private:
  BareEngine engine_;
  BareEngine::Statement select_;
  QThread thread_;
  QObject reader_;  ///< lives in the thread
  ToolkitTable table_;
  PaintWatch paint_;
};

/// Different days, among them busy ones, until the first screen of lines has been painted.
void day(Run& run, benchmark::State& state, Measured& row) {
  const auto& folder = run.shops.copy(run.largest());
  SearchWindow window(folder);
  BareSearch bare(folder / "bare.mdb", window.listSize());
  int n = 0;
  for ([[maybe_unused]] auto _ : state) {
    const Date asked = n % 10 == 0
                           ? shop_file::kBusyDay
                           : plusDays(shop_file::kFirstDay, n * 37 % shop_file::kHistoryDays);
    window.setPeriod(asked, asked);
    state.SetIterationTime(row.till.time([&] { window.search(false); }));
    window.finish();
    row.bare.time([&] { bare.search(asked, asked, kFirstPage); });
    ++n;
  }
  row.claims = {{"ratio", row.ratio(), 2}};
}

/// A year, until the list is complete.
void year(Run& run, benchmark::State& state, Measured& row) {
  const Date first{2020, 1, 1}, last{2020, 12, 31};
  const auto& folder = run.shops.copy(run.largest());
  SearchWindow window(folder);
  window.setPeriod(first, last);
  BareSearch bare(folder / "bare.mdb", window.listSize());
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(row.till.time([&] { window.search(true); }));
    std::size_t lines = 0;
    row.bare.time([&] { lines = bare.search(first, last, kAllLines); });
    if (static_cast<int>(lines) != window.lines()) {
      throw std::runtime_error("the year's lines differ");
    }
  }
  row.claims = {{"ratio", row.ratio(), 2}};
}

/// Their rows in the toolkit's own table, in a window of its own that is made for them.
void showBills(BareEngine::Statement& select, QSize size, PaintWatch& paint) {
  const std::string begin = storedText({shop_file::kBusyDay});
  const std::string end = storedText({shop_file::kBusyDay, 23, 59, 59});
  ToolkitTable table(size);
  table.fill(select.bind(1, begin).bind(2, end).read(kAllLines));
  paint.untilPainted("list", [] {});
}

/// The statistics of a day with two thousand bills, from their opening to their list.
void statistics(Run& run, benchmark::State& state, Measured& row) {
  const auto pos = openTill(run.shops.copy(run.largest()), shop_file::kBusyDay);
  PaintWatch paint;
  BareEngine engine(run.shops.copy(run.largest()) / "bare.mdb");
  BareEngine::Statement select(engine, kBillsOfDay);
  QSize size;
  for ([[maybe_unused]] auto _ : state) {
    const Stopwatch since;
    frmCount form(*pos);
    paint.afterPaint("listSell", [&] {
      row.till.add(since.microseconds());
      size = form.findChild<QTableView*>("listSell")->size();
      QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
    });
    form.init();
    row.bare.time([&] { showBills(select, size, paint); });
    state.SetIterationTime(row.till.median() / 1e6);
  }
  row.claims = {{"ratio", row.ratio(), 1.5}};
}

/// Every line that the shop has, as the owner's page; against reading them all.
void ownersReport(Run& run, benchmark::State& state, Measured& row) {
  const auto& folder = run.shops.copy(run.largest());
  const auto shop = openDataFile({folder / "data/POS.mdb", kBuiltInPassword});
  BareEngine engine(folder / "bare.mdb");
  BareEngine::Statement select(engine, "select * from sellProducts");
  const ReportTerms terms{shop_file::kFirstDay, shop_file::kBusyDay};
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(row.till.time([&] {
      const auto report =
          takingsReport(*shop, terms, {shop_file::kBusyDay}, [](double) { return true; });
      if (htmlReport(report.value()).empty()) throw std::runtime_error("no report");
    }));
    row.bare.time([&] { select.readAll(); });
  }
  row.claims = {{"ratio", row.ratio(), 4}};
}

}  // namespace

void addReportRows(Run& run) {
  const auto add = [&run](const char* what, int samples, auto body) {
    addRow(run, what, run.largest().lines, samples,
           [&run, body](benchmark::State& state, Measured& row) { body(run, state, row); });
  };
  add("sales query of a day, first page", run.samples(200, 30), &day);
  add("sales query of a year, whole list", run.samples(3, 2), &year);
  add("owner's report", run.samples(3, 2), &ownersReport);
  add("statistics of 2,000 bills", run.samples(100, 20), &statistics);
}
