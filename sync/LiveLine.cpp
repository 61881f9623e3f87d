#include "sync/LiveLine.h"

#include <utility>

LiveLine::LiveLine(const ShopLink& link, std::filesystem::path dataFile, Clock clock)
    : till_(link.till), dataFile_(std::move(dataFile)), clock_(std::move(clock)), server_(link) {}

std::optional<SyncState> LiveLine::state() const {
  return readSyncState(dataFile_);
}

bool LiveLine::isAway() const {
  const std::optional<SyncState> last = state();
  return last && secondsBetween(last->contact, clock_()) > kSilence.count();
}
