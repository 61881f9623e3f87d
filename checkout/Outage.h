#pragma once

#include <functional>

#include <QString>

/// Tells the cashier about a broken device once per outage: the first failure is reported, the next
/// ones are silent until the device has worked again.
class Outage {
 public:
  using Report = std::function<void(const QString& text)>;
  explicit Outage(Report report) : report_(std::move(report)) {}

  void failed(const QString& text) {
    if (!silent_) {
      silent_ = true;
      report_(text);
    }
  }
  void worked() { silent_ = false; }

 private:
  Report report_;
  bool silent_ = false;
};
