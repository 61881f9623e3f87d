#include "sync/Download.h"

#include <algorithm>
#include <exception>
#include <nlohmann/json.hpp>
#include <set>

#include "base/Failure.h"
#include "saleslib/MasterTables.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/StoreError.h"
#include "store/Transaction.h"
#include "sync/MasterRows.h"
#include "sync/OthersPart.h"

namespace {

constexpr std::size_t kMostAsked = 500, kMostAskedAlone = 10'000;
constexpr std::size_t kMostWritten = 50;
constexpr int kLongLog = 1'000;  // pages; a pause is as good for copying them
constexpr const char* kCompareAll = "TL007";
constexpr const char* kNoSuchFunction = "42883";

int tillOf(Connection& connection) {
  const std::optional<ShopLink> link = shopLink(connection);
  ensure(link.has_value(), "only a till of a shop has something to fetch");
  return link->till;
}

}  // namespace

Download::Download(Connection& connection, ServerLine& line, Company company)
    : connection_(connection), calls_(line, tillOf(connection)), company_(company) {}

Download::Outcome Download::step(Moment now) try {
  if (!isWaiting_) return isWanted_ ? ask() : Outcome::kIdle;
  if (company_ == Company::kTill && now - last_ < kPause) return Outcome::kMore;
  const Moment begun = std::chrono::steady_clock::now();
  const Outcome outcome = write();
  last_ = now + (std::chrono::steady_clock::now() - begun);
  return outcome;
} catch (const StoreBusy&) {
  return Outcome::kMore;
} catch (const std::exception& failure) {
  return failed(failure.what());
}

Download::Outcome Download::failed(const std::string& fault) {
  fault_ = fault;
  isWanted_ = isWaiting_ = false;
  return Outcome::kFailed;
}

Download::Outcome Download::ask() {
  place_ = downPlace(connection_);
  came_ = calls_.changes(place_, company_ == Company::kAlone ? kMostAskedAlone : kMostAsked);
  if (came_.kind == ServerAnswer::kRefusal && came_.state == kCompareAll) {
    keepDownPlace(connection_, {});
    return Outcome::kMore;
  }
  if (came_.kind != ServerAnswer::kAnswer) {
    const bool isOlder = came_.state == kNoSuchFunction;  // a server of the version before
    failed(isOlder ? "" : came_.fault);
    return isOlder ? Outcome::kIdle : Outcome::kFailed;
  }
  fault_.clear();
  written_ = 0;
  isWanted_ = !came_.isLast;
  isWaiting_ = !came_.rows.empty() || place_.isWalking || came_.next.tx != place_.tx;
  return isWaiting_ || isWanted_ ? Outcome::kMore : Outcome::kIdle;
}

Download::Outcome Download::write() {
  const std::size_t end = company_ == Company::kAlone
                              ? came_.rows.size()
                              : std::min(came_.rows.size(), written_ + kMostWritten);
  {
    Transaction writing(connection_);
    MasterRows masters(connection_);
    for (std::size_t row = written_; row < end; ++row) apply(came_.rows[row], masters);
    if (place_.isWalking) removeRest(end, written_ == 0 ? place_ : placeBehind(written_), masters);
    masters.note();
    if (company_ == Company::kTill) updateFragmentIndexInSteps(connection_);
    if (company_ == Company::kAlone && came_.isLast) updateFragmentIndex(connection_);
    keepDownPlace(connection_, placeBehind(end));
    writing.commit();
  }
  rows_ += end - written_;
  written_ = end;
  isWaiting_ = end < came_.rows.size();
  if (connection_.logPages() > kLongLog) connection_.checkpoint();
  return isWaiting_ || isWanted_ ? Outcome::kMore : Outcome::kIdle;
}

/// The place of a till that has the rows before `end`.
DownPlace Download::placeBehind(std::size_t end) const {
  if (end == came_.rows.size()) return came_.next;
  if (end == 0) return place_;
  const ShopCalls::Change& last = came_.rows[end - 1];
  return {came_.next.generation, place_.isWalking ? came_.next.tx : last.tx, last.tbl, last.key,
          place_.isWalking};
}

void Download::apply(const ShopCalls::Change& change, MasterRows& masters) {
  if (isOthersPart(change.tbl)) {
    if (change.body.empty()) return;
    const nlohmann::json others = nlohmann::json::parse(change.body).at("others");
    return followOthers(connection_, change.tbl, change.key, others.get<double>());
  }
  const MasterTable* table = masterTable(change.tbl);
  if (table == nullptr) return;  // of a newer server
  change.body.empty() ? masters.remove(*table, change.key)
                      : masters.put(*table, change.key, change.body);
}

// What lies between two places and did not come, the server does not have.
void Download::removeRest(std::size_t end, const DownPlace& before, MasterRows& masters) {
  const bool isEnd = end == came_.rows.size() && came_.isLast;
  std::set<std::string> kept;
  for (const std::string& name : came_.whole) {
    const MasterTable* table = masterTable(name);
    const std::string lastTable = isEnd || end == 0 ? "" : came_.rows[end - 1].tbl;
    if (table == nullptr || name < before.tbl || (!isEnd && name > lastTable)) continue;
    kept.clear();
    for (std::size_t row = written_; row < end; ++row) {
      if (came_.rows[row].tbl == name) kept.insert(came_.rows[row].key);
    }
    masters.removeOthers(*table, name == before.tbl ? before.key : "",
                         !isEnd && name == lastTable ? &came_.rows[end - 1].key : nullptr, kept);
  }
}
