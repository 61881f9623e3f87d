#include "storm/Storm.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <thread>
#include <utility>

#include "SellingTill.h"
#include "link/ServerLine.h"
#include "server/ShopServer.h"
#include "storm/StormTill.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr auto kDrainPatience = std::chrono::seconds(60);

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what);
}

void require(const std::string& expected, const std::string& found, const std::string& what) {
  if (expected != found) fail(what + ": " + expected + " at the till, " + found + " at the server");
}

double number(const std::string& text) {
  return std::stod(text);
}

}  // namespace

Storm::Storm(int tills, unsigned seed)
    : proxy_(folder_.path().string(), server_.port(),
             server_.folder().string() + "/.s.PGSQL." + std::to_string(server_.port())),
      random_(seed) {
  ServerLine owner(server_.owner());
  ShopServer(owner).init("");
  for (int each = 1; each <= tills; ++each) {
    const std::string name = std::to_string(each);
    tills_.push_back({each, folder_.file("till" + name), folder_.file("shown" + name)});
    join(tills_.back());
    startTill(tills_.back());
    startSync(tills_.back());
  }
}

void Storm::join(Till& till) {
  ServerLine owner(server_.owner());
  const JoinCode code = ShopServer(owner).addTill(till.number, false);
  const std::string role = "till_" + std::to_string(till.number);
  ServerLine line(
      joiningParameters({server_.folder().string(), server_.port(), "books", role, code.secret}));
  const ShopServer::Joined joined = ShopServer::enrol(line, till.number, "password");
  joinShop(*SellingTill(till.file).shop,
           {.till = till.number,
            .epoch = joined.epoch,
            .host = folder_.path().string(),
            .port = server_.port(),
            .database = "books",
            .password = "password",
            .authority = ""},
           joined.highestBill);
}

void Storm::startTill(Till& till) {
  till.program = std::make_unique<Process>(std::vector<std::string>{
      "/proc/self/exe", "--till", till.file, till.shown, std::to_string(random_())});
}

void Storm::startSync(Till& till) const {
  till.sync = std::make_unique<Process>(
      std::vector<std::string>{TILL_PROGRAM_FOLDER "/tillsync", till.file, "--ask-file-password"});
}

void Storm::pause(int mostMs) {
  std::this_thread::sleep_for(milliseconds(random_() % static_cast<unsigned>(mostMs)));
}

void Storm::strike() {
  pause(400);
  Till& till = tills_[random_() % tills_.size()];
  const auto what = random_() % 16;
  if (what < 5) {
    if (till.program->hasEnded()) fail("a till ended by itself");
    till.program->kill();
    startTill(till);
    ++faults_["till"];
  } else if (what < 9) {
    if (till.sync->hasEnded()) fail("a tillsync ended by itself");
    till.sync->kill();
    startSync(till);
    ++faults_["tillsync"];
  } else if (what == 9) {
    server_.kill();
    pause(300);
    server_.start();
    ++faults_["server"];
  } else {
    using enum Proxy::Weather;
    const auto [weather, name] =
        std::vector<std::pair<Proxy::Weather, const char*>>{{kCut, "cut"},
                                                            {kSwallow, "swallowed"},
                                                            {kLoseAnswer, "answers lost"},
                                                            {kLoseAnswer, "answers lost"},
                                                            {kSlow, "slow"}}[random_() % 5];
    proxy_.set(weather);
    pause(800);
    proxy_.set(kFair);
    ++faults_[name];
  }
}

void Storm::putServerBack() {
  server_.putBack();
  ++faults_["server put back"];
}

void Storm::clearAndCompare() {
  proxy_.set(Proxy::Weather::kFair);
  for (Till& till : tills_) {
    till.program->kill();
    SellingTill(till.file).begin();
  }
  for (const Till& till : tills_) drain(till);
  for (const Till& till : tills_) compare(till);
  compareSums();
}

void Storm::drain(const Till& till) {
  const std::string last = SellingTill(till.file).value("select max(seq) as value from fact");
  const std::string applied =
      "select applied from shop.till where till = " + std::to_string(till.number);
  const auto deadline = steady_clock::now() + kDrainPatience;
  while (server_.value(applied) != last) {
    if (till.sync->hasEnded()) fail("a tillsync ended by itself");
    if (steady_clock::now() > deadline)
      fail("till " + std::to_string(till.number) + " is not drained");
    std::this_thread::sleep_for(milliseconds(20));
  }
}

void Storm::compare(const Till& till) {
  const SellingTill books(till.file);
  const std::string number = std::to_string(till.number);
  const std::map<int, std::string> shown = shownBills(till.shown);
  bills_ += shown.size();
  for (const auto& [bill, due] : shown) {
    require(due,
            server_.value("select string_agg(trim_scale(amount)::text, ' and ') from shop.sale"
                          " where till = " +
                          number + " and bill = " + std::to_string(bill)),
            "bill " + std::to_string(bill));
  }
  const std::pair<const char*, const char*> sums[] = {
      {"select count(*) as value from sell where state = 1", "select count(*) from shop.sale"},
      {"select count(*) as value from un_sell", "select count(*) from shop.taken_back"},
      {"select count(*) as value from fact", "select count(*) from shop.fact"},
      {"select count(*) as value from sell s join sellProducts l on s.id = l.sellId where state = "
       "1",
       "select count(*) from shop.sale_line"}};
  for (const auto& [own, server] : sums)
    require(books.value(own), server_.value(server + (" where till = " + number)), server);
}

void Storm::compareSums() {
  double stock = SellingTill::kStock, balances[] = {SellingTill::kBalance, SellingTill::kBalance};
  for (const Till& till : tills_) {
    const SellingTill books(till.file);
    stock += number(books.stock()) - SellingTill::kStock;
    for (const int card : {0, 1})
      balances[card] +=
          number(books.balance("800" + std::to_string(card + 1))) - SellingTill::kBalance;
  }
  const auto same = [this](double expected, const std::string& query) {
    const double found = number(server_.value(query));
    if (std::abs(expected - found) > 0.00005)
      fail(query + ": " + std::to_string(expected) + " at the tills, " + std::to_string(found));
  };
  same(stock, "select quantity from shop.stock where item = 'b'");
  same(balances[0], "select balance from shop.card_balance where number = '8001'");
  same(balances[1], "select balance from shop.card_balance where number = '8002'");
  same(0, "select count(*) from shop.fault");
  ServerLine owner(server_.owner());
  const ShopServer::Checked checked = ShopServer(owner).check(false);
  if (!checked.faults.empty()) fail(checked.faults.front());
}

void Storm::print() const {
  std::string faults;
  for (const auto& [name, count] : faults_) faults += ", " + name + " " + std::to_string(count);
  std::printf("%zu tills%s; %zu bills shown; lost: 0, doubled: 0, stock and cards wrong: 0\n",
              tills_.size(), faults.c_str(), bills_);
}
