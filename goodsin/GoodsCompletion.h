#pragma once

#include <atomic>
#include <thread>

#include "store/DataSource.h"

/// Goes on with an import that counts and was ended before all of it was in the goods tables, in a
/// thread with a connection of its own, while the till sells. What fails is left to the next start.
class GoodsCompletion {
 public:
  explicit GoodsCompletion(DataSource shop);
  /// Ends it after the slice that it is at.
  ~GoodsCompletion();
  GoodsCompletion(const GoodsCompletion&) = delete;
  GoodsCompletion& operator=(const GoodsCompletion&) = delete;

 private:
  std::atomic<bool> stopped_ = false;
  std::thread thread_;
};
