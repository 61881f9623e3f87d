#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "kill/Ledger.h"

/// What the driver knows of the shop's books: what was confirmed, and the one step that may or may
/// not have happened when the till was killed.
class Journal {
 public:
  using Step = std::function<void(Ledger&)>;

  explicit Journal(Ledger start) : confirmed_(std::move(start)) {}

  const Ledger& confirmed() const { return confirmed_; }
  /// The key that takes this step is about to be pressed. With `halfway` the step is two writes,
  /// and only the first may have happened.
  void begin(std::string what, Step step, Step halfway = nullptr);
  /// The till has shown that the step was taken.
  void confirm();
  bool isOpen() const { return step_ != nullptr; }

  /// Holds the books of a till that was killed against the journal and goes on from them. `shown`
  /// tells that the open step had been confirmed to customer or cashier before the till died.
  /// Throws std::runtime_error naming what is lost or doubled.
  enum class Outcome { kNothingOpen, kTaken, kHalfTaken, kNotTaken };
  Outcome judge(const Ledger& found, bool shown);

 private:
  void close() { step_ = halfway_ = nullptr; }

  Ledger confirmed_;
  std::string what_;
  Step step_, halfway_;
};
