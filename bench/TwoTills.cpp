#include "bench/TwoTills.h"

#include <unistd.h>

#include "bench/Goods.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace fs = std::filesystem;

namespace {

constexpr int kLines = 10;
constexpr int kMember = 7;

/// A copy of the shop for the other till, before the first one opens it.
std::unique_ptr<BenchFolder> twin(Run& run, const std::function<void(Connection&)>& change) {
  auto folder = run.shops.emptyFolder();
  const fs::path inside = "data/POS.mdb";
  fs::create_directory(folder->path() / "data");
  fs::copy_file(run.shops.copy(TwoTills::kSize) / inside, folder->path() / inside);
  change(*openDataFile({folder->path() / inside, kBuiltInPassword}));
  sync();
  return folder;
}

}  // namespace

TwoTills::TwoTills(Run& run, const std::function<void(Connection&)>& change)
    : folder_(twin(run, change)),
      alone_(std::make_unique<BenchShop>(run.shops.copy(kSize))),
      other_(std::make_unique<BenchShop>(folder_->path())) {
  checkpoint();
}

std::string TwoTills::next() {
  item_ = static_cast<int>((item_ + std::int64_t{618'033}) % kSize.goods);
  return goods::barcode(item_);
}

void TwoTills::ringBills() {
  for (BenchShop* till : {alone_.get(), other_.get()}) till->attach(kMember);
  for (int line = 0; line < kLines; ++line) {
    const std::string code = next();
    for (BenchShop* till : {alone_.get(), other_.get()}) till->enter(code);
  }
}

void TwoTills::endBills() {
  for (BenchShop* till : {other_.get(), alone_.get()}) {
    if (!till->sale().isEmpty()) till->settle();
  }
  checkpoint();
}

void TwoTills::checkpoint() {
  for (BenchShop* till : {alone_.get(), other_.get()}) till->pos().gConn->checkpoint();
}
