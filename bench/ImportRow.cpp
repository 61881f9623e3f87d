#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/BareEngine.h"
#include "bench/BenchShop.h"
#include "bench/Goods.h"
#include "bench/ProgramFolder.h"
#include "bench/Run.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/FragmentIndex.h"
#include "store/Transaction.h"

namespace fs = std::filesystem;

namespace {

/// Starts the owner's tool, silently.
pid_t startTool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), ownersTool().string());
  std::vector<char*> words;
  words.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) words.push_back(argument.data());
  words.push_back(nullptr);
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("no process");
  if (process == 0) {
    if (freopen("/dev/null", "w", stdout) != nullptr &&
        freopen("/dev/null", "w", stderr) != nullptr)
      execv(words.front(), words.data());
    _exit(127);
  }
  return process;
}

/// Whether the tool is still at it, or, when `waits`, has ended; throws when it failed.
bool isAtIt(pid_t process, bool waits, rusage& used) {
  int status = 0;
  if (wait4(process, &status, waits ? 0 : WNOHANG, &used) == 0) return true;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error("tilladmin failed");
  return false;
}

/// Runs it; gives the most memory that it had, in MiB.
double runTool(std::vector<std::string> arguments) {
  rusage used = {};
  static_cast<void>(isAtIt(startTool(std::move(arguments)), true, used));
  return static_cast<double>(used.ru_maxrss) / 1024;
}

/// The goods in no particular order: which of them comes n-th.
int itemInFile(int n, int count) {
  return static_cast<int>(n * std::int64_t{618'033} % count);
}

void writeGoods(const fs::path& file, int count) {
  std::ofstream csv(file);
  csv << "sptm,ggxh,spbm,spmc,spcd,jldw,xsdj,pfj,zk,dwbl,zhjj,splbmc\n";
  for (int n = 0; n < count; ++n) {
    const int item = itemInFile(n, count);
    csv << goods::barcode(item) << ',' << goods::specification(item, count) << ','
        << goods::itemCode(item) << ',' << goods::name(item) << ",广东,瓶,2.5,2.3,1,1,1.2,饮料\n";
  }
}

/// The goods that the barcodes belong to.
void fillMaster(const fs::path& shop, int count) {
  const auto connection = openDataFile({shop, kBuiltInPassword});
  Transaction filling(*connection);
  for (int item = 0; item < count; ++item) {
    connection->run("insert into spda (f_spbm, f_spmc) values (?, ?)", goods::itemCode(item),
                    goods::name(item));
  }
  updateFragmentIndex(*connection);
  filling.commit();
}

/// The file of a new shop in that folder, without barcodes.
std::string newShop(const BenchFolder& folder, int goods) {
  std::string shop = folder.path() / "shop.mdb";
  runTool({"create", shop});
  fillMaster(shop, goods);
  return shop;
}

/// Imports that many barcodes into a new shop; gives the tool's memory.
double import(Run& run, int goods, Samples& samples) {
  const auto folder = run.shops.emptyFolder();
  const std::string shop = newShop(*folder, goods);
  const std::string csv = folder->path() / "goods.csv";
  writeGoods(csv, goods);
  double memory = 0;
  samples.time([&] { memory = runTool({"import", shop, "--table", "tmda", csv}); });
  return memory;
}

/// The same rows in the same order by one prepared statement in one transaction.
void insertBarcodes(const fs::path& shop, int goods) {
  BareEngine engine(shop);
  BareEngine::Statement(engine, "begin immediate").run();
  BareEngine::Statement insert(
      engine,
      "insert or fail into tmda (sptm, ggxh, spbm, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj,"
      " splbmc) values (?, ?, ?, ?, '广东', '瓶', 2.5, 2.3, 1, 1, 1.2, '饮料')");
  for (int n = 0; n < goods; ++n) {
    const int item = itemInFile(n, goods);
    const std::string barcode = goods::barcode(item), code = goods::itemCode(item);
    const std::string specification = goods::specification(item, goods), name = goods::name(item);
    insert.bind(1, barcode).bind(2, specification).bind(3, code).bind(4, name).run();
  }
  BareEngine::Statement(engine, "commit").run();
}

/// Inserts them into a new shop without the tool; its indexes are the same at the end.
void insertBarcodes(Run& run, int goods, Samples& samples) {
  const auto folder = run.shops.emptyFolder();
  const std::string shop = newShop(*folder, goods);
  samples.time([&] {
    insertBarcodes(shop, goods);
    updateFragmentIndex(*openDataFile({shop, kBuiltInPassword}));
  });
}

/// The tool's time is compared with that of the inserts alone, its memory with what a tenth of the
/// goods need.
void import(Run& run, benchmark::State& state, Measured& row) {
  const int goods = run.largest().goods;
  for ([[maybe_unused]] auto _ : state) {
    Samples tenth;
    const double little = import(run, goods / 10, tenth);
    const double much = import(run, goods, row.till);
    insertBarcodes(run, goods, row.bare);
    state.SetIterationTime(row.till.median() / 1e6);
    row.claims = {{"ratio", row.ratio(), 2}, {"memory growth", much / little, 1.1}};
  }
}

constexpr int kLinesPerBill = 20;
constexpr ShopSize kRingingShop = kShopSizes.front();

/// New goods for that shop, as a sheet in the shop's own headings.
void writeSheet(const fs::path& file, int count) {
  std::ofstream csv(file);
  csv << "商品编码,条码,货号,名称,规格,单位,产地,零售价,会员价,进价,类别\n";
  for (int n = 0; n < count; ++n) {
    const int item = kRingingShop.goods + itemInFile(n, count);
    const std::string specification = goods::specification(item, count);
    csv << goods::itemCode(item) << ',' << goods::barcode(item) << ',' << specification << ','
        << goods::name(item) << ',' << specification << ",瓶,广东,2.5,2.3,1.2,饮料\n";
  }
}

/// The same rows in the same order by two prepared statements in one transaction.
void insertSheet(const fs::path& shop, int count) {
  {
    BareEngine engine(shop);
    BareEngine::Statement(engine, "begin immediate").run();
    BareEngine::Statement barcode(
        engine,
        "insert or fail into tmda (sptm, ggxh, spbm, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj,"
        " splbmc) values (?, ?, ?, ?, '广东', '瓶', 2.5, 2.3, 1, 1, 1.2, '饮料')");
    BareEngine::Statement master(
        engine,
        "insert or fail into spda (f_sptm, f_Ggxh, f_spbm, f_spmc, f_sphh, f_spcd, f_jldw, f_xsdj,"
        " f_pfj, f_zk, f_zhjj, f_splbmc)"
        " values (?, ?, ?, ?, ?2, '广东', '瓶', 2.5, 2.3, 1, 1.2, '饮料')");
    for (int n = 0; n < count; ++n) {
      const int item = kRingingShop.goods + itemInFile(n, count);
      const std::string code = goods::barcode(item), itemCode = goods::itemCode(item);
      const std::string specification = goods::specification(item, count), name = goods::name(item);
      for (BareEngine::Statement* insert : {&master, &barcode})
        insert->bind(1, code).bind(2, specification).bind(3, itemCode).bind(4, name).run();
    }
    BareEngine::Statement(engine, "commit").run();
  }
  updateFragmentIndex(*openDataFile({shop, kBuiltInPassword}));
}

/// A till rings, twenty lines a second, while the owner's tool brings a sheet in.
void importBesideTill(Run& run, benchmark::State& state, Measured& row) {
  const int count = run.largest().goods;
  const fs::path folder = run.shops.copy(kRingingShop);
  const fs::path sheet = folder / "goods.csv";
  writeSheet(sheet, count);
  for ([[maybe_unused]] auto _ : state) {
    Samples imported, inserted;
    {
      BenchShop till(folder);
      imported.time([&] {
        rusage used = {};
        const pid_t tool =
            startTool({"import", (folder / "data/POS.mdb").string(), sheet.string(), "--yes"});
        for (int item = 0; isAtIt(tool, false, used); ++item) {
          row.till.time([&] { till.enter(goods::barcode(item % kRingingShop.goods)); });
          if (item % kLinesPerBill == kLinesPerBill - 1) till.settle();
          std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
      });
    }
    inserted.time([&] { insertSheet(folder / "bare.mdb", count); });
    state.SetIterationTime(imported.median() / 1e6);
    row.claims = {{"max ms", row.till.most() / 1e3, 500},
                  {"ratio of the import", imported.median() / inserted.median(), 2}};
  }
}

}  // namespace

void addImportRow(Run& run) {
  addRow(run, "import of goods with their indexes", run.largest().goods, 1,
         [&run](benchmark::State& state, Measured& row) { import(run, state, row); });
  addRow(run, "ringing a line while a goods sheet comes in", run.largest().goods, 1,
         [&run](benchmark::State& state, Measured& row) { importBesideTill(run, state, row); });
}
