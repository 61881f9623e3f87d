#include "sync/ShopCards.h"

#include <utility>

#include "saleslib/SyncState.h"
#include "sync/ShopCalls.h"

namespace {

using std::chrono::duration_cast;
using std::chrono::steady_clock;

// The first question may find that the line broke long ago.
constexpr int kAttempts = 2;

std::chrono::seconds between(const DateTime& from, const DateTime& to) {
  const auto ofDay = [](const DateTime& time) {
    return std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
           std::chrono::seconds(time.second);
  };
  return std::chrono::hours(24) * daysBetween(from.date, to.date) + ofDay(to) - ofDay(from);
}

}  // namespace

ShopCards::ShopCards(const ShopLink& link, std::filesystem::path dataFile, Clock clock)
    : till_(link.till), dataFile_(std::move(dataFile)), clock_(std::move(clock)), server_(link) {}

bool ShopCards::isAway() const {
  const std::optional<SyncState> state = readSyncState(dataFile_);
  return state && between(state->contact, clock_()) > kSilence;
}

CardAuthority::Answer ShopCards::charge(const Charge& charge) {
  Answer answer;
  if (isAway()) return answer;
  const auto deadline = steady_clock::now() + kPatience;
  for (int attempt = 0; attempt < kAttempts && answer.kind == Answer::kNone; ++attempt) {
    const auto left = duration_cast<ServerLine::Milliseconds>(deadline - steady_clock::now());
    if (left.count() <= 0) break;
    answer = ShopCalls(server_.line(), till_).charge(charge, left);
  }
  return answer;
}
