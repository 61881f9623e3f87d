#pragma once

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>

#include "reports/ListExport.h"

/// Work that ends with a file and runs beside its window.
class ExportRun {
 public:
  /// Asks `goOn` now and then, with how much is done, and ends with false soon after a no.
  using Work = std::function<bool(const ExportProgress& goOn)>;
  /// Runs the work in a thread of its own, while events go on; returns what it returned when it has
  /// ended, and throws what it threw. `show` is called some times a second with how much is done.
  [[nodiscard]] bool run(const Work& work, const std::function<void(std::size_t done)>& show);
  /// Writes the list (see exportList) that way; what is done are rows. Nobody changes the list
  /// meanwhile. Throws FileError.
  [[nodiscard]] bool write(const std::filesystem::path& file, const ExportTable& table,
                           const std::function<void(std::size_t rows)>& show);
  void stop() { stopped_ = true; }
  bool isRunning() const { return running_; }

 private:
  std::atomic<bool> stopped_ = false;
  bool running_ = false;
};
