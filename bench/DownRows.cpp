#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

#include "bench/Enrolled.h"
#include "bench/Goods.h"
#include "server/Publishing.h"
#include "store/FragmentIndex.h"
#include "store/Transaction.h"
#include "sync/Download.h"

namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""min;

constexpr std::size_t kLinesPerBill = 20;
constexpr auto kBetweenLines = 5ms;
constexpr double kOldPrice = 2.4, kNewPrice = 2.6;

/// Goods with a barcode each, by one prepared statement for each table in one transaction, and
/// their indexes; with stock where there is some.
void fill(Connection& shop, int goods, double stock) {
  Transaction filling(shop);
  for (int item = 0; item < goods; ++item) {
    const std::string code = goods::itemCode(item), barcode = goods::barcode(item);
    const std::string specification = goods::specification(item, goods), name = goods::name(item);
    shop.run(
        "insert into spda (f_spbm, f_spmc, f_sphh, f_sptm, f_Ggxh, f_jldw, f_xsdj, f_pfj, f_zk,"
        " f_zhjj, f_spcd, f_splbmc)"
        " values (?, ?, ?, ?, ?, '瓶', 2.5, 2.3, 1, 1.2, '广东', '饮料')",
        code, name, specification, barcode, specification);
    shop.run(
        "insert into tmda (sptm, spbm, ggxh, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj, splbmc)"
        " values (?, ?, ?, ?, '广东', '瓶', 2.5, 2.3, 1, 1, 1.2, '饮料')",
        barcode, code, specification, name);
    if (stock > 0) shop.run("insert into stock (spbm, quantity) values (?, ?)", code, stock);
  }
  updateFragmentIndex(shop);
  filling.commit();
}

std::int64_t countOf(Rows rows) {
  return rows.next() ? rows.whole("number").value_or(0) : 0;
}
/// How many goods have another price.
std::int64_t pricesToCome(Connection& till, double price) {
  return countOf(till.query("select count(*) as number from tmda where xsdj <> ?", price));
}

std::unique_ptr<Connection> emptyFile(const BenchFolder& folder) {
  return createDataFile({folder.path() / "POS.mdb", kBuiltInPassword});
}

/// The data file in which the shop's owner keeps the goods, and from which he publishes them.
class Office {
 public:
  Office(Run& run, ServerBeside& beside, int goods)
      : folder_(run.shops.emptyFolder()),
        file_(emptyFile(*folder_)),
        line_(beside.server().owner()) {
    fill(*file_, goods, 0);
    publishAll();
  }
  void setPrices(double price) {
    file_->run("update tmda set xsdj = ?", price);
    publishAll();
  }
  /// Another till has counted that much of everything.
  void countElsewhere(int quantity) {
    const std::string number = std::to_string(quantity);
    ask("insert into shop.stock_base select 2, key, $1::numeric, $1::numeric from shop.change "
        "where tbl = 'spda'",
        number);
    ask("insert into shop.own_stated"
        " select 'stock', key, 2, 1, 1, $1::numeric from shop.change where tbl = 'spda'",
        number);
    ask("insert into shop.change (tbl, key, body)"
        " select 'stock', key, jsonb_build_object('of', $1::text) from shop.change where tbl = "
        "'spda'",
        number);
    ask("delete from shop.touched where $1::text <> ''", number);
    if (!line_.run("analyze", 5min).isDone()) throw std::runtime_error("not analyzed");
  }

 private:
  void publishAll() {
    publish(line_, *file_, {}, [](std::int64_t) {});
  }
  void ask(const char* statement, const std::string& number) {
    const ServerAnswer answer = line_.ask(statement, {number}, 5min);
    if (!answer.isDone()) throw std::runtime_error(answer.text);
  }

  std::unique_ptr<BenchFolder> folder_;
  std::unique_ptr<Connection> file_;
  ServerLine line_;
};

/// Returns when all goods have that price.
void awaitPrice(Connection& till, double price) {
  const auto deadline = std::chrono::steady_clock::now() + 5min;
  while (pricesToCome(till, price) > 0) {
    if (std::chrono::steady_clock::now() > deadline)
      throw std::runtime_error("the prices do not come down");
    std::this_thread::sleep_for(100ms);
  }
}

/// From the moment when the prices of all goods change at the server, until the till has them.
void ringWhilePricesComeDown(Run& run, benchmark::State& state, Measured& row) {
  Enrolled shop(run);
  Connection& file = *shop.tills.other().pos().gConn;
  Office office(run, shop.beside, TwoTills::kSize.goods);
  office.setPrices(kOldPrice);
  awaitPrice(file, kOldPrice);  // what came first is over
  for ([[maybe_unused]] auto _ : state) {
    office.setPrices(kNewPrice);
    if (pricesToCome(file, kNewPrice) < TwoTills::kSize.goods / 2)
      throw std::runtime_error("half of the prices came before the first line was rung");
    do {
      if (row.till.count() % kLinesPerBill == 0) shop.tills.endBills();
      const std::string code = shop.tills.next();
      shop.tills.compare(state, row, [&](BenchShop& till) { till.enter(code); });
      std::this_thread::sleep_for(kBetweenLines);
    } while (pricesToCome(file, kNewPrice) > 0);
  }
  row.claims = {{"p99 to p99", row.till.percentile99() / row.bare.percentile99(), 4},
                {"MiB of tillsync", residentMiB(shop.tillsync()), 20}};
}

/// All goods of a shop, and what another till has of them in stock, into a till that just joined.
void firstLoad(Run& run, benchmark::State& state, Measured& row) {
  constexpr int kStock = 10;
  const int goods = run.largest().goods;
  ServerBeside beside;
  Office office(run, beside, goods);
  office.countElsewhere(kStock);
  for ([[maybe_unused]] auto _ : state) {
    const JoinedFile till(run, beside);
    ServerLine line = ServerLine(beside.till());
    state.SetIterationTime(row.till.time([&] {
      Download download(*till.connection, line, Download::Company::kAlone);
      while (download.step() == Download::Outcome::kMore) continue;
      if (!download.fault().empty()) throw std::runtime_error(download.fault());
    }));
    if (countOf(till.connection->query(
            "select count(*) as number from tmda join stock using (spbm) where quantity = ?",
            kStock)) != goods)
      throw std::runtime_error("not all goods came");
    const auto folder = run.shops.emptyFolder();
    row.bare.time([&] { fill(*emptyFile(*folder), goods, kStock); });
  }
  row.claims = {{"ratio", row.ratio(), 3}};
}

}  // namespace

void addDownRows(Run& run) {
  if (!ThrowAwayServer::isInstalled()) return;
  addRow(
      run, "ringing a line while 10,000 prices come down", TwoTills::kSize.goods, 1,
      [&run](benchmark::State& state, Measured& row) { ringWhilePricesComeDown(run, state, row); });
  addRow(run, "first load of a shop's goods", run.largest().goods, 1,
         [&run](benchmark::State& state, Measured& row) { firstLoad(run, state, row); });
}
