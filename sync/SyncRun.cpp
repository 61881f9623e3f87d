#include "sync/SyncRun.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "base/Words.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/StoreError.h"
#include "sync/Download.h"
#include "sync/TillErrands.h"
#include "sync/TillLine.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr SyncRun::Milliseconds kShortestWait = 20ms;
constexpr SyncRun::Milliseconds kLongestWait = 1s;
constexpr SyncRun::Milliseconds kWaitForPeople = 10s;
constexpr auto kWithoutTill = 1min;
constexpr auto kBetweenNotes = 1s;
constexpr int kFailuresToOpenAnew = 10;  // the till may have joined anew, under another password

SyncState::Refusal refusalOf(Upload::Outcome outcome) {
  if (outcome == Upload::Outcome::kWrongServer) return SyncState::Refusal::kCertificate;
  return outcome == Upload::Outcome::kRefused ? SyncState::Refusal::kTill
                                              : SyncState::Refusal::kNone;
}

}  // namespace

struct SyncRun::Session {
  Session(std::unique_ptr<Connection> opened, const ShopLink& link, std::int64_t atServer)
      : connection(std::move(opened)),
        server(link),
        upload(*connection, server.line(), atServer),
        download(*connection, server.line()),
        errands(*connection, server.line(), link.till) {}

  std::unique_ptr<Connection> connection;
  TillLine server;
  Upload upload;
  Download download;
  TillErrands errands;
};

SyncRun::SyncRun(DataSource file, const SyncPlace& place, Surroundings surroundings)
    : file_(std::move(file)),
      place_(place),
      surroundings_(std::move(surroundings)),
      wait_(kShortestWait),
      lastMoment_(steady_clock::time_point::max()) {}

SyncRun::~SyncRun() = default;

void SyncRun::open() {
  std::unique_ptr<Connection> connection = openDataFile(file_);
  const std::optional<ShopLink> link = shopLink(*connection);
  ensure(link.has_value(), "run has looked");
  session_ = std::make_unique<Session>(std::move(connection), *link, state_.atServer.value_or(0));
}

void SyncRun::begin() {
  const std::unique_ptr<Connection> file = openDataFile(file_);
  if (!shopLink(*file))
    throw StoreError(Words::tr("这台收银机没有加入店铺的服务器（tilladmin enrol）。"));
  const DateTime kept = lastContact(*file).value_or(surroundings_.clock());
  state_ = readSyncState(file_.path).value_or(SyncState{.contact = kept});
}

void SyncRun::run() {
  begin();
  for (;;) {
    const Upload::Outcome outcome = attempt();
    note(outcome);
    if (isOver(outcome)) return;
    if (const Milliseconds wait = waitAfter(outcome); wait > 0ms) surroundings_.pause(wait);
  }
}

// The data file may be busy, be put back from a copy, or be gone for a moment: none of that ends
// the program.
Upload::Outcome SyncRun::attempt() try {
  if (!session_) open();
  session_->connection->requireItsFile();
  Upload::Outcome outcome = session_->upload.step();
  if (outcome == Upload::Outcome::kIdle && session_->errands.step())
    outcome = Upload::Outcome::kWent;
  state_.pendingBills = session_->upload.pendingBills();
  if (outcome == Upload::Outcome::kWent) keepContact();
  fault_ = session_->upload.fault();
  if (fault_.empty()) fault_ = session_->errands.fault();
  if (outcome == Upload::Outcome::kWent) session_->download.look();
  const bool isWell = outcome == Upload::Outcome::kWent || outcome == Upload::Outcome::kIdle;
  if (isWell && session_->download.step() == Download::Outcome::kFailed)
    fault_ = session_->download.fault();
  return outcome;
} catch (const Failure& failure) {
  fault_ = failure.what();
  session_.reset();
  return Upload::Outcome::kFailed;
}

void SyncRun::keepContact() try {
  state_.contact = surroundings_.clock();
  state_.atServer = session_->upload.atServer();
  noteContact(*session_->connection, state_.contact);
} catch (const StoreBusy&) {
  // the next answer is as good
}

void SyncRun::note(Upload::Outcome outcome) {
  using enum Upload::Outcome;
  const bool isWell = outcome == kWent || outcome == kIdle;
  tellOnce(fault_);
  failures_ = isWell ? 0 : failures_ + 1;
  const SyncState::Refusal before = state_.refusal;
  if (outcome != kIdle) state_.refusal = refusalOf(outcome);
  const bool isForPeople = state_.refusal != SyncState::Refusal::kNone;
  if (isForPeople || failures_ % kFailuresToOpenAnew == kFailuresToOpenAnew - 1) session_.reset();
  const auto now = steady_clock::now();
  if (now - written_ < kBetweenNotes && state_.refusal == before) return;
  place_.write(state_);
  written_ = now;
}

void SyncRun::tellOnce(const std::string& fault) {
  if (fault == told_) return;
  surroundings_.tell(fault.empty() ? Words::tr("已连上服务器") : fault);
  told_ = fault;
}

SyncRun::Milliseconds SyncRun::waitAfter(Upload::Outcome outcome) {
  using enum Upload::Outcome;
  if (outcome == kRefused || outcome == kWrongServer) return kWaitForPeople;
  if (outcome != kFailed) {
    wait_ = kShortestWait;
    return outcome == kIdle ? kShortestWait : 0ms;
  }
  return std::exchange(wait_, std::min(2 * wait_, kLongestWait));
}

bool SyncRun::isOver(Upload::Outcome outcome) {
  if (!surroundings_.isTillGone()) return false;
  const auto now = steady_clock::now();
  lastMoment_ = std::min(lastMoment_, now + kWithoutTill);
  return outcome == Upload::Outcome::kIdle || now >= lastMoment_;
}
