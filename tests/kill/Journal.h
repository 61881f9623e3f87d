#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

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
  void begin(std::string what, Step step, Step halfway = nullptr) {
    what_ = std::move(what);
    step_ = std::move(step);
    halfway_ = std::move(halfway);
  }
  /// The till has shown that the step was taken.
  void confirm() { confirmed_ = after(std::exchange(step_, nullptr)); }
  bool isOpen() const { return step_ != nullptr; }

  /// Holds the books of a till that was killed against the journal and goes on from them. `shown`
  /// tells that the open step had been confirmed to customer or cashier before the till died.
  /// Throws std::runtime_error naming what is lost or doubled.
  enum class Outcome { kNothingOpen, kTaken, kHalfTaken, kNotTaken };
  Outcome judge(const Ledger& found, bool shown) {
    const std::string notDone = difference(confirmed_, found);
    if (!isOpen()) {
      require(notDone.empty(), "nothing was open, but\n" + notDone);
      return Outcome::kNothingOpen;
    }
    const Step step = std::exchange(step_, nullptr), halfway = std::exchange(halfway_, nullptr);
    if (notDone.empty()) {
      require(!shown, "lost, although it had been shown: " + what_);
      return Outcome::kNotTaken;
    }
    if (halfway && !shown && difference(after(halfway), found).empty()) {
      confirmed_ = after(halfway);
      return Outcome::kHalfTaken;
    }
    const std::string done = difference(after(step), found);
    require(done.empty(), what_ + " is neither done nor undone. Not done would be\n" + notDone +
                              "done would be\n" + done);
    confirmed_ = after(step);
    return Outcome::kTaken;
  }

 private:
  Ledger after(const Step& step) const {
    Ledger books = confirmed_;
    step(books);
    return books;
  }
  static void require(bool right, const std::string& what) {
    if (!right) throw std::runtime_error(what);
  }

  Ledger confirmed_;
  std::string what_;
  Step step_, halfway_;
};
