#pragma once

#include <atomic>
#include <functional>

#include "shop/GoodsImport.h"

/// Work in a thread of its own while the events of its window go on.
class LongWork {
 public:
  /// Is to ask now and then whether to go on.
  using Work = std::function<void(const GoOn& goOn)>;
  using Show = std::function<void(double part)>;

  /// Returns when the work has ended, and throws what it threw. `show` is called some times a
  /// second with the part that is done, 0 ... 1.
  void run(const Work& work, const Show& show);
  /// From now on every answer to the work is no.
  void stop() { stopped_ = true; }
  bool isRunning() const { return running_; }

 private:
  std::atomic<bool> stopped_ = false;
  bool running_ = false;
};
