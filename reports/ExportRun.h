#pragma once

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>

#include "reports/ListExport.h"

/// An export that runs beside its window.
class ExportRun {
 public:
  /// Writes the list (see exportList) in a thread of its own, while events go on; returns when that
  /// has ended. `show` is called some times a second with the rows written so far. Nobody changes
  /// the list meanwhile. Throws FileError.
  [[nodiscard]] bool write(const std::filesystem::path& file, const ExportTable& table,
                           const std::function<void(std::size_t rows)>& show);
  void stop() { stopped_ = true; }
  bool isRunning() const { return running_; }

 private:
  std::atomic<bool> stopped_ = false;
  bool running_ = false;
};
