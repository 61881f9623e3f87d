#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>

#include "shop/GoodsMapping.h"
#include "shop/GoodsPreview.h"
#include "store/Connection.h"
#include "store/DataSource.h"

/// The reading and the bringing in of a goods sheet, each in a thread of its own with a connection
/// of its own, while the events of its window go on; both return when that has ended, nothing when
/// it was stopped. `user` is who imports, asked in that thread. `show` is called some times a
/// second with the part that is done, 0 ... 1.
class GoodsRun {
 public:
  using Show = std::function<void(double part)>;

  GoodsRun(DataSource shop, ConnectionUser user) : shop_(std::move(shop)), user_(std::move(user)) {}

  /// Throw Failure (see shop/GoodsImport.h).
  [[nodiscard]] std::optional<GoodsPreview> preview(const std::filesystem::path& file,
                                                    const GoodsMapping& mapping, const Show& show);
  [[nodiscard]] std::optional<GoodsPreview> import(const std::filesystem::path& file,
                                                   const GoodsMapping& mapping, const Show& show);
  /// Ends the reading. What counts already is brought in all the same.
  void stop() { stopped_ = true; }
  bool isRunning() const { return running_; }

 private:
  using Work = std::function<std::optional<GoodsPreview>(const std::function<bool(double)>& goOn)>;
  std::optional<GoodsPreview> run(const Work& work, const Show& show);

  DataSource shop_;
  ConnectionUser user_;
  std::atomic<bool> stopped_ = false;
  bool running_ = false;
};
