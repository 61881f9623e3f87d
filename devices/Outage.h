#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/Failure.h"

/// Tells the cashier about a broken device once per outage: the first failure is reported, the next
/// ones are silent until the device has worked again.
class Outage {
 public:
  using Report = std::function<void(const std::string& text)>;
  explicit Outage(Report report) : report_(std::move(report)) {}

  /// Works with the device; false when that failed.
  template <class Work>
  bool tried(const Work& work) {
    try {
      work();
      isOver_ = true;
      return true;
    } catch (const Failure& error) {
      if (std::exchange(isOver_, false)) report_(error.what());
      return false;
    }
  }

 private:
  Report report_;
  bool isOver_ = true;
};
