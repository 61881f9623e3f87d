#include "kill/Journal.h"

#include <stdexcept>
#include <utility>

void Journal::begin(std::string what, Step step, Step halfway) {
  what_ = std::move(what);
  step_ = std::move(step);
  halfway_ = std::move(halfway);
}

void Journal::confirm() {
  step_(confirmed_);
  close();
}

Journal::Outcome Journal::judge(const Ledger& found, bool shown) {
  const std::string unlikeBefore = difference(confirmed_, found);
  if (!isOpen()) {
    if (!unlikeBefore.empty()) throw std::runtime_error("nothing was open, but\n" + unlikeBefore);
    return Outcome::kNothingOpen;
  }
  if (unlikeBefore.empty()) {
    if (shown) throw std::runtime_error("lost, although it had been shown: " + what_);
    close();
    return Outcome::kNotTaken;
  }
  if (halfway_ && !shown) {
    Ledger half = confirmed_;
    halfway_(half);
    if (difference(half, found).empty()) {
      confirmed_ = std::move(half);
      close();
      return Outcome::kHalfTaken;
    }
  }
  Ledger after = confirmed_;
  step_(after);
  if (const std::string unlike = difference(after, found); !unlike.empty()) {
    throw std::runtime_error(what_ + " is neither done nor undone. Not done would be\n" +
                             unlikeBefore + "done would be\n" + unlike);
  }
  confirmed_ = std::move(after);
  close();
  return Outcome::kTaken;
}
