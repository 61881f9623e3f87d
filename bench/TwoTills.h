#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "bench/BenchShop.h"
#include "bench/Run.h"
#include "bench/SyncCount.h"

class Connection;

/// Two tills of the same shop that do the same in turn, of which the other is not as it was: it
/// keeps a journal, or belongs to a shop with a server. The smallest shop.
class TwoTills {
 public:
  static constexpr ShopSize kSize = kShopSizes.front();

  /// `change` is what is done to the other's data file before its till starts.
  TwoTills(Run& run, const std::function<void(Connection&)>& change);

  BenchShop& alone() { return *alone_; }
  BenchShop& other() { return *other_; }
  /// The next item's barcode.
  std::string next();
  /// Ten lines of a member each.
  void ringBills();
  /// Settles what was rung, and has both log files empty.
  void endBills();
  void checkpoint();

  /// Times the work of the other till and counts its syncs, against the same of the one alone.
  template <class Work>
  void compare(benchmark::State& state, Measured& row, const Work& work) {
    const Syncs before = syncCount();
    state.SetIterationTime(row.till.time([&] { work(*other_); }));
    syncs_ += syncCount() - before;
    row.bare.time([&] { work(*alone_); });
  }
  /// Of the other till, for each time that was compared.
  double syncs(const Measured& row) const {
    return static_cast<double>(syncs_.all) / static_cast<double>(row.till.count());
  }

 private:
  std::unique_ptr<BenchFolder> folder_;
  std::unique_ptr<BenchShop> alone_, other_;
  Syncs syncs_;
  int item_ = 0;
};
