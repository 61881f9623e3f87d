#include "sync/ShopCards.h"

#include <utility>

#include "saleslib/SyncState.h"
#include "sync/ShopCalls.h"

namespace {

using std::chrono::duration_cast;
using std::chrono::steady_clock;

// The first question may find that the line broke long ago.
constexpr int kAttempts = 2;

}  // namespace

ShopCards::ShopCards(const ShopLink& link, std::filesystem::path dataFile, Clock clock)
    : till_(link.till), dataFile_(std::move(dataFile)), clock_(std::move(clock)), server_(link) {}

bool ShopCards::isAway() const {
  const std::optional<SyncState> state = readSyncState(dataFile_);
  return state && secondsBetween(state->contact, clock_()) > kSilence.count();
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
