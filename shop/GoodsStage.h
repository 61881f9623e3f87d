#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "shop/GoodsComparison.h"
#include "shop/StagedTable.h"
#include "shop/WriteSlices.h"

class Connection;

/// Where a sheet's rows wait in the data file until all of them are there. Nothing of it is seen
/// before seal(); from then on all of it comes into the goods tables, whatever happens: finish()
/// moves it there slice by slice, and whoever opens the file next goes on where another was ended.
///
/// Rows wait in runs sorted by key, so that a slice of the whole order writes to few pages of the
/// goods' indexes.
class GoodsStage {
 public:
  /// Takes the place of a sheet that waits unsealed. Throws Refusal when a sealed one waits.
  GoodsStage(Connection& connection, WriteSlices::Company company);
  /// Takes away what was not sealed, as far as it can.
  ~GoodsStage();
  GoodsStage(const GoodsStage&) = delete;
  GoodsStage& operator=(const GoodsStage&) = delete;

  /// Throws Refusal when another import has taken this one's place meanwhile.
  void add(GoodsToWrite goods);
  /// All of it counts from now on, and new categories are there. Throws as above.
  void seal();

 private:
  static constexpr std::size_t kTables = 3;

  void flush();
  void requireOwn(std::int64_t staged);

  Connection& connection_;
  WriteSlices slices_;
  std::array<StagedTable, kTables> tables_;
  std::array<std::vector<GoodsToWrite::TableRow>, kTables> buffers_;
  std::int64_t token_ = 0;
  std::int64_t run_ = 0;
  std::size_t buffered_ = 0;
  std::vector<std::string> categories_;  ///< in the order of the sheet
  std::set<std::string> knownCategories_;
  bool isSealed_ = false;
};

/// Rows of a sheet that counts and that are not in the goods tables yet.
std::int64_t goodsWaiting(Connection& connection);
/// Moves what was sealed into the goods tables, if anything was. `goOn` hears the part that is
/// done, 0 ... 1, and by saying no leaves the rest to the next one. Two may do it at the same time.
void finishGoods(Connection& connection, WriteSlices::Company company,
                 const std::function<bool(double part)>& goOn);
