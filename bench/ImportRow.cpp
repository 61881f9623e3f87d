#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

#include "bench/Goods.h"
#include "bench/ProgramFolder.h"
#include "bench/Run.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/Transaction.h"

namespace fs = std::filesystem;

namespace {

/// Runs the owner's tool, silently; gives the most memory that it had, in MiB.
double runTool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), ownersTool().string());
  std::vector<char*> words;
  for (std::string& argument : arguments) words.push_back(argument.data());
  words.push_back(nullptr);
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("no process");
  if (process == 0) {
    freopen("/dev/null", "w", stdout);
    freopen("/dev/null", "w", stderr);
    execv(words.front(), words.data());
    _exit(127);
  }
  int status = 0;
  rusage used = {};
  wait4(process, &status, 0, &used);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error("tilladmin failed");
  return static_cast<double>(used.ru_maxrss) / 1024;
}

/// The goods in no particular order.
void writeGoods(const fs::path& file, int count) {
  std::ofstream csv(file);
  csv << "sptm,ggxh,spbm,spmc,spcd,jldw,xsdj,pfj,zk,dwbl,zhjj,splbmc\n";
  for (int n = 0; n < count; ++n) {
    const int item = static_cast<int>(n * std::int64_t{618'033} % count);
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

/// Imports that many barcodes into a new shop; gives the tool's memory.
double import(Run& run, int goods, Samples& samples) {
  const auto folder = run.shops.emptyFolder();
  const std::string shop = folder->path() / "shop.mdb";
  const std::string csv = folder->path() / "goods.csv";
  writeGoods(csv, goods);
  runTool({"create", shop});
  fillMaster(shop, goods);
  double memory = 0;
  samples.time([&] { memory = runTool({"import", shop, "--table", "tmda", csv}); });
  return memory;
}

/// The tool's memory is compared with what a tenth of the goods need.
void import(Run& run, benchmark::State& state, Measured& row) {
  const int goods = run.largest().goods;
  for (auto _ : state) {
    Samples tenth;
    const double little = import(run, goods / 10, tenth);
    const double much = import(run, goods, row.till);
    state.SetIterationTime(row.till.median() / 1e6);
    row.claims = {{"s", row.till.median() / 1e6, 30}, {"memory growth", much / little, 1.1}};
  }
}

}  // namespace

void addImportRow(Run& run) {
  addRow(run, "import of goods with their indexes", run.largest().goods, 1,
         [&run](benchmark::State& state, Measured& row) { import(run, state, row); });
}
