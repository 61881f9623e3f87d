#include "sync/Upload.h"

#include <cstdint>
#include <ctime>
#include <utility>

#include "base/Failure.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"

namespace {

constexpr int kEntriesTold = 5000;  // of a history at once
constexpr const char* kTellMore = "TL006";

ShopLink requiredLink(Connection& connection) {
  std::optional<ShopLink> link = shopLink(connection);
  ensure(link.has_value(), "only a till of a shop has something to bring");
  return *link;
}

/// The server has another history in mind: to be asked anew where it is.
bool isAnotherHistory(const std::string& state) {
  return state == "TL002" || state == "TL003" || state == "TL004";
}

/// It will not take the till until somebody does something: as who it is (class 28 of SQLSTATE), at
/// that database (3D), or at all.
bool isForPeople(const std::string& state) {
  return state.starts_with("28") || state.starts_with("3D") ||
         (state.starts_with("TL") && !isAnotherHistory(state));
}

}  // namespace

Upload::Upload(Connection& connection, ServerLine& line, std::int64_t atServer)
    : connection_(connection),
      calls_(line, requiredLink(connection).till),
      backlog_(connection),
      epoch_(requiredLink(connection).epoch),
      known_{atServer, {}} {}

Upload::Outcome Upload::step(Moment now) {
  if (!place_) return greet(now);
  const std::vector<JournalEntry> entries = nextEntries(connection_, *place_);
  if (!entries.empty()) return send(entries, now);
  return now - answered_ < kHeartbeat ? Outcome::kIdle : greet(now);
}

ShopCalls::Told Upload::told() {
  return {pendingBills(), std::time(nullptr)};
}

Upload::Outcome Upload::greet(Moment now) {
  return follow(calls_.hello(told()), now);
}

Upload::Outcome Upload::send(const std::vector<JournalEntry>& entries, Moment now) {
  return follow(calls_.put(epoch_, place_->hash, entries, told()), now);
}

// Its number alone would not do: a file that was put back from a copy has other entries of the same
// numbers, and would bring nothing until it has more of them than the server.
Upload::Outcome Upload::follow(const ShopCalls::Standing& standing, Moment now) {
  if (standing.kind != ServerAnswer::kAnswer) return failed(standing.fault, standing.state);
  if (standing.epoch != epoch_ || !hasEntry(connection_, standing.place)) return beginEpoch();
  place_ = known_ = standing.place;
  answered_ = now;
  fault_.clear();
  return Outcome::kWent;
}

Upload::Outcome Upload::beginEpoch() {
  place_.reset();
  std::vector<Place> own = lastEntries(connection_, INT64_MAX, kEntriesTold);
  ShopCalls::Epoch begun = calls_.newEpoch(epoch_, own);
  while (begun.state == kTellMore && !own.empty()) {
    own = lastEntries(connection_, own.back().seq, kEntriesTold);
    begun = calls_.newEpoch(epoch_, own);
  }
  if (begun.kind != ServerAnswer::kAnswer) return failed(begun.fault, begun.state);
  ::beginEpoch(connection_, begun.epoch, begun.highestBill);
  epoch_ = begun.epoch;
  return Outcome::kWent;
}

// An unknown answer may have been done or not: only the server can say where to go on. A full disk
// there, or whatever else it says of itself, passes.
Upload::Outcome Upload::failed(const std::string& fault, const std::string& state) {
  place_.reset();
  fault_ = fault;
  if (state == ServerAnswer::kWrongCertificate) return Outcome::kWrongServer;
  return isForPeople(state) ? Outcome::kRefused : Outcome::kFailed;
}
