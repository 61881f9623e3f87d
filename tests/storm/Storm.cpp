#include "storm/Storm.h"

#include <signal.h>

#include <cstdio>
#include <stdexcept>
#include <thread>
#include <utility>

#include "SellingTill.h"
#include "ShopJoining.h"
#include "link/ServerLine.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "storm/SellingDay.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr auto kDrainPatience = std::chrono::seconds(90);  // without anything that moves

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what);
}

void require(const std::string& expected, const std::string& found, const std::string& what) {
  if (expected != found) fail(what + ": " + expected + " at the till, " + found + " at the server");
}

}  // namespace

Storm::Storm(int tills, bool byKeys, unsigned seed)
    : proxy_(folder_.path().string(), server_.port(),
             server_.folder().string() + "/.s.PGSQL." + std::to_string(server_.port())),
      random_(seed) {
  ServerLine owner(server_.owner());
  ShopServer(owner).init("");
  for (int each = 1; each <= tills; ++each) {
    tills_.push_back(std::make_unique<StormTill>(each, byKeys, folder_.path()));
    StormTill& till = *tills_.back();
    joinThrowAwayShop(server_, *SellingTill(till.file(), till.password()).shop, each,
                      folder_.path().string());
    const Figures start = ownFigures(till);
    for (const auto& [name, figure] : start) expected_.emplace(name, figure);
    addDifference(expected_, {}, start);
    till.start(draw());
    if (!byKeys) till.startSync();
  }
}

Figures Storm::ownFigures(const StormTill& till) const {
  return ::ownFigures(*openDataFile({till.file(), till.password()}), till.number());
}

void Storm::pause(unsigned mostMs) {
  std::this_thread::sleep_for(milliseconds(draw() % mostMs));
}

void Storm::strike() {
  pause(400);
  StormTill& till = *tills_[draw() % tills_.size()];
  const auto what = draw() % 16;
  if (what < 5) {
    till.kill();
    till.start(draw());
    ++faults_["till"];
  } else if (what < 9) {
    till.killSync();
    if (till.password().empty()) till.startSync();
    ++faults_["tillsync"];
  } else if (what == 9) {
    killServer();
  } else {
    blow();
  }
}

void Storm::blow() {
  using enum Proxy::Weather;
  const auto [weather, name] =
      std::vector<std::pair<Proxy::Weather, const char*>>{{kCut, "cut"},
                                                          {kSwallow, "swallowed"},
                                                          {kLoseAnswer, "answers lost"},
                                                          {kLoseAnswer, "answers lost"},
                                                          {kSlow, "slow"}}[draw() % 5];
  proxy_.set(weather);
  pause(800);
  proxy_.set(Proxy::Weather::kFair);
  ++faults_[name];
}

void Storm::letServerForget() {
  server_.set("synchronous_commit = off");
  server_.stop();
  server_.start();
}

// The process that writes what was answered has no turn for a while.
void Storm::forget() {
  const auto writer =
      server_.value("select pid from pg_stat_activity where backend_type = 'walwriter'");
  ::kill(std::stoi(writer), SIGSTOP);
  std::this_thread::sleep_for(milliseconds(300));
  killServer();
}

std::string Storm::applied() {
  return server_.value("select coalesce(sum(applied), 0) from shop.till");
}

void Storm::killServer() {
  const long told = std::stol(applied());
  server_.kill();
  pause(300);
  server_.start();
  forgotten_ += std::max(0L, told - std::stol(applied()));
  ++faults_["server"];
}

void Storm::putServerBack() {
  server_.putBack();
  ++faults_["server put back"];
}

void Storm::copyTill() {
  StormTill& till = *tills_.front();
  till.kill();
  till.killSync();
  till.copy();
  till.start(draw());
  till.startSync();
}

void Storm::putTillBack() {
  StormTill& till = *tills_.front();
  till.kill();
  till.begin();
  drain(till);
  till.killSync();
  const Figures gone = ownFigures(till);
  till.putBack();
  addDifference(expected_, gone, ownFigures(till));
  // An entry of the same second could be the same in both histories, and is then one.
  std::this_thread::sleep_for(std::chrono::seconds(1));
  till.start(draw());
  till.startSync();
  ++faults_["file put back"];
}

void Storm::clearAndCompare() {
  proxy_.set(Proxy::Weather::kFair);
  for (const auto& till : tills_) {
    till->kill();
    till->killSync();
    till->begin();
    till->startSync();
  }
  for (const auto& till : tills_) drain(*till);
  for (const auto& till : tills_) {
    compareShown(*till);
    addDifference(expected_, ownFigures(*till), {});
  }
  ServerLine owner(server_.owner());
  const std::string wrong = difference(expected_, allFigures(owner));
  if (!wrong.empty()) fail(wrong);
  for (const auto& till : tills_) requireFollowed(*till, shopFigures(owner));
  compareCharges();
  const ShopServer::Checked checked = ShopServer(owner).check(false);
  if (!checked.faults.empty()) fail(checked.faults.front());
}

// By the hash, too: another history of the till may have come as far.
void Storm::drain(StormTill& till) {
  const auto file = openDataFile({till.file(), till.password()});
  Rows last = file->query("select seq || ' ' || hash as place from fact order by seq desc limit 1");
  if (!last.next()) fail(till.name() + " has no journal");
  const std::string place = last.text("place");
  const std::string known =
      "select applied || ' ' || hash from shop.till where till = " + std::to_string(till.number());
  std::string there;
  auto deadline = steady_clock::now() + kDrainPatience;
  for (std::string now; (now = server_.value(known)) != place;) {
    till.requireSync();
    if (now != std::exchange(there, now)) deadline = steady_clock::now() + kDrainPatience;
    if (steady_clock::now() > deadline)
      fail(till.name() + " is not drained: " + now + " instead of " + place);
    std::this_thread::sleep_for(milliseconds(20));
  }
}

// What the others did comes down once all of it is there.
void Storm::requireFollowed(StormTill& till, const Figures& shop) {
  const auto file = openDataFile({till.file(), till.password()});
  const auto deadline = steady_clock::now() + kDrainPatience;
  for (;;) {
    const std::string wrong = difference(shopFigures(*file), shop);
    if (wrong.empty()) return;
    till.requireSync();
    if (steady_clock::now() > deadline) fail(till.name() + " does not follow: " + wrong);
    std::this_thread::sleep_for(milliseconds(20));
  }
}

void Storm::compareShown(const StormTill& till) {
  int epoch = 0;
  for (const std::string& shown : till.shown()) {
    ++epoch;
    for (const auto& [bill, due] : shownBills(shown)) {
      ++bills_;
      require(due,
              server_.value("select string_agg(trim_scale(amount)::text, ' and ') from shop.sale"
                            " where till = " +
                            std::to_string(till.number()) + " and epoch = " +
                            std::to_string(epoch) + " and bill = " + std::to_string(bill)),
              "bill " + std::to_string(bill));
    }
  }
}

void Storm::compareCharges() {
  const auto none = [this](const char* what) { require("0", server_.value(what), what); };
  none("select count(*) from shop.fault");
  none("select count(*) from shop.charge where state = 'open'");
  none(
      "select trim_scale((select coalesce(sum(card_pay), 0) from shop.sale) - (select"
      " coalesce(sum(amount), 0) from shop.charge where state = 'settled'))");
  charges_ = server_.value(
      "select count(*) filter (where state = 'settled') || ' settled, ' || count(*) filter (where"
      " state = 'voided' and asked is not null) || ' taken back, ' || count(*) filter (where state "
      "="
      " 'voided' and asked is null) || ' given up before they came' from shop.charge");
}

void Storm::print() const {
  std::string faults;
  for (const auto& [name, count] : faults_) faults += ", " + name + " " + std::to_string(count);
  std::printf(
      "%zu tills%s, entries forgotten %ld; %zu bills shown; charges of cards: %s; lost: 0, "
      "doubled: 0, stock and cards wrong: 0\n",
      tills_.size(), faults.c_str(), forgotten_, bills_, charges_.c_str());
}
