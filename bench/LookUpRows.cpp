#include <memory>

#include "bench/BareEngine.h"
#include "bench/BenchShop.h"
#include "bench/Goods.h"
#include "bench/Run.h"
#include "platform/QtText.h"
#include "sale/ItemLookup.h"
#include "store/FragmentPieces.h"

namespace {

constexpr const char* kWithStock =
    "select tmda.*, quantity from tmda left join stock on stock.spbm = tmda.spbm where sptm = ?";
constexpr const char* kBySpecification =
    "select tmda.*, quantity from tmda left join stock on stock.spbm = tmda.spbm where ggxh like ?1"
    " and tmda.id in (select docid from tmda_fragments where ggxh match ?2"
    " union all select id from tmda_written)";
constexpr const char* kByItemNumber =
    "select spda.*, quantity from spda left join stock on stock.spbm = spda.f_spbm"
    " where f_sphh like ?1 and spda.id in (select docid from spda_fragments where f_sphh match ?2"
    " union all select id from spda_written)";
constexpr const char* kBarcode = "barcode look-up with pricing";

// Walks through the goods without a pattern that a cache could keep.
int nextItem(int item, ShopSize size) {
  return static_cast<int>((item + std::int64_t{618'033}) % size.goods);
}

/// A look-up as the sale screen does it, on an open bill.
class LookUp {
 public:
  explicit LookUp(const std::filesystem::path& folder) : shop_(folder) {}

  bool barcode(const QString& code) { return lookUp_.LookupBarcode(code) != nullptr; }
  bool specification(const QString& piece) { return lookUp_.LookupSpec(piece) != nullptr; }
  bool itemNumber(const QString& piece) { return lookUp_.LookupItemNo(piece) != nullptr; }

 private:
  BenchShop shop_;
  BillBooks books_ = shop_.pos().billBooks();
  ItemLookup lookUp_{shop_.sale(), books_, shop_};
};

void require(bool found) {
  if (!found) throw std::runtime_error("a look-up found nothing");
}

void claimGrowth(const Run& run, Measured& row) {
  const Measured* small = run.table.find(row.what, kShopSizes.front().goods);
  if (small == nullptr || small->size == row.size) return;
  const double till = row.till.median() / small->till.median();
  const double bare = row.bare.median() / small->bare.median();
  row.claims.push_back({"growth against the bare one's", till / bare, 1.5});
}

/// The row of a scanned code, its price, and the line it becomes; against reading the same row from
/// a file of its own.
void barcode(Run& run, ShopSize size, benchmark::State& state, Measured& row) {
  const auto& folder = run.shops.copy(size);
  LookUp lookUp(folder);
  BareEngine engine(folder / "bare.mdb");
  BareEngine::Statement select(engine, "select * from tmda where sptm = ?");
  int item = 0;
  const auto one = [&](Samples& till, Samples& bare) {
    item = nextItem(item, size);
    const std::string code = goods::barcode(item);
    const QString typed = qtText(code);
    bare.time([&] { require(select.bind(1, code).readAll() == 1); });
    return till.time([&] { require(lookUp.barcode(typed)); });
  };
  Samples first, firstBare;  // the upper pages of the indexes come into the caches
  for (int n = 0; n < 1000; ++n) one(first, firstBare);
  for ([[maybe_unused]] auto _ : state) state.SetIterationTime(one(row.till, row.bare));
  row.claims.push_back({"ratio", row.ratio(), 2});
  claimGrowth(run, row);
}

using Find = bool (LookUp::*)(const QString&);

/// Two to five characters in turn, a different piece each time; against the same selection through
/// the index, and against that of the goods that have the piece by their barcodes.
void fragment(Run& run, Find find, const char* selection, benchmark::State& state, Measured& row) {
  const int goods = run.largest().goods;
  const auto& folder = run.shops.copy(run.largest());
  LookUp lookUp(folder);
  BareEngine engine(folder / "bare.mdb");
  BareEngine::Statement select(engine, selection), known(engine, kWithStock);
  Samples byBarcode;
  int n = 0;
  for ([[maybe_unused]] auto _ : state) {
    const int item = goods::itemWithRareWord(n * 7 % (goods / 100));
    const int characters = 2 + n % 4;
    const QString piece = qtText(goods::fragment(item, characters));
    state.SetIterationTime(row.till.time([&] { require((lookUp.*find)(piece)); }));
    const std::string like = '%' + piece.toStdString() + '%', match = *fragmentQuery(like);
    row.bare.time([&] { require(select.bind(1, like).bind(2, match).readAll() > 0); });
    byBarcode.time([&] {
      for (const int found : goods::itemsWithFragment(item, characters, goods)) {
        require(known.bind(1, goods::barcode(found)).readAll() == 1);
      }
    });
    ++n;
  }
  row.claims = {{"ratio", row.ratio(), 1.5},
                {"against the barcodes", row.till.median() / byBarcode.median(), 10}};
}

}  // namespace

void addLookUpRows(Run& run) {
  for (const ShopSize size : run.sizes()) {
    addRow(
        run, kBarcode, size.goods, run.samples(20'000, 2'000),
        [&run, size](benchmark::State& state, Measured& row) { barcode(run, size, state, row); });
  }
  const auto addFragment = [&run](const char* what, Find find, const char* selection) {
    addRow(run, what, run.largest().goods, run.samples(2'000, 200),
           [&run, find, selection](benchmark::State& state, Measured& row) {
             fragment(run, find, selection, state, row);
           });
  };
  addFragment("fragment look-up, ggxh", &LookUp::specification, kBySpecification);
  addFragment("fragment look-up, f_sphh", &LookUp::itemNumber, kByItemNumber);
}
