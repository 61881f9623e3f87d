#include "saleslib/LoginBrake.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kFreeAttempts = 2;
constexpr std::chrono::seconds kFirstWait{5};
constexpr std::chrono::seconds kLongestWait{60};  // whoever is right must not stand there for long
constexpr int kMostDoublings = 4;

}  // namespace

LoginBrake::LoginBrake(SteadyClock now) : now_(std::move(now)) {}

std::chrono::seconds LoginBrake::wait() const {
  const auto left = std::chrono::ceil<std::chrono::seconds>(until_ - now_());
  return std::max(left, std::chrono::seconds(0));
}

void LoginBrake::wrong() {
  if (++wrongInARow_ <= kFreeAttempts) return;
  const int doublings = std::min(wrongInARow_ - kFreeAttempts - 1, kMostDoublings);
  until_ = now_() + std::min(kFirstWait * (1 << doublings), kLongestWait);
}

void LoginBrake::right() {
  wrongInARow_ = 0;
  until_ = {};
}
