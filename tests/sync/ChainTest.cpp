#include <array>
#include <atomic>
#include <thread>
#include <vector>

#include "sync/ShopServerFixture.h"

/// Two shops and their head office, each with a server of its own. What is asked is asked at the
/// server that was entered last; head office is number 0.
struct ChainTest : ShopServerFixture {
  static constexpr int kHead = 0;

  static void SetUpTestSuite() {
    for (int at = kHead; at < 3; ++at) {
      server_ = std::make_unique<ThrowAwayServer>();
      server_->stop();
      server_->set("wal_level = logical");
      server_->allow("local all head_office,shop_1,shop_2 scram-sha-256");
      server_->start();
      servers_.at(static_cast<std::size_t>(at)) = std::move(server_);
    }
    server_ = std::move(servers_[kHead]);
  }
  static void TearDownTestSuite() {
    server_.reset();
    servers_ = {};
  }

  ChainTest() {
    head_ = server_.get();
    for (const int number : {1, 2}) {
      const std::string name = "shop_" + std::to_string(number);
      value("select shop.add_shop(" + std::to_string(number) + ", 'secret')");
      enter(number);
      server_->makeEmpty();
      owner = std::make_unique<ServerLine>(server_->owner());
      EXPECT_GT(shop().init(""), 0);
      value("select shop.join_chain(" + std::to_string(number) + ", '" + way(*head_, name) +
            "', 'secret')");
      value("select shop.share_cards(true)");
      const std::string line = way(*server_, "head_office");
      enter(kHead);
      value("set client_min_messages = warning");
      value("create subscription " + name + " connection '" + line +
            " password=secret' publication shop_facts");
    }
  }

  void enter(int number) {
    std::swap(server_, servers_.at(static_cast<std::size_t>(at_)));
    std::swap(server_, servers_.at(static_cast<std::size_t>(number)));
    at_ = number;
    owner = std::make_unique<ServerLine>(server_->owner());
  }
  static std::string way(const ThrowAwayServer& server, const std::string& user) {
    return "host=" + server.folder().string() + " port=" + std::to_string(server.port()) +
           " dbname=books user=" + user;
  }
  std::unique_ptr<Joined> joinAt(int number) {
    enter(number);
    auto joined = join(1, "shop" + std::to_string(number));
    joined->bring();
    enter(kHead);
    return joined;
  }
  /// What head office says to that in the end.
  static std::string soon(const std::string& statement, const std::string& expected) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    std::string said;
    do said = value(statement);
    while (said != expected && std::chrono::steady_clock::now() < patience);
    return said;
  }
  /// How many of ten charges of 1,500 yuan of the card 8001, five in each shop at once, were done.
  int chargeAtOnce() {
    std::atomic<int> done = 0;
    std::vector<std::thread> shops;
    for (const int number : {1, 2}) {
      enter(number);
      shops.emplace_back([&done, parameters = tillParameters(address(1, "password"), "")] {
        ServerLine line(parameters);
        for (int key = 0; key < 5; ++key) done += charge(line, std::to_string(key)) == "done";
      });
    }
    for (std::thread& each : shops) each.join();
    enter(kHead);
    return done;
  }
  static std::string charge(ServerLine& line, const std::string& key) {
    const ServerAnswer answer =
        line.ask("select outcome from api.charge(1, $1, '8001', 1500)", {key});
    return answer.isDone() ? answer.rows.at(0).at(0).value_or("") : "no answer";
  }

  /// No shop sends again what it has sent.
  void forgetSent() {
    for (const int number : {1, 2}) {
      enter(number);
      const std::string now = value("select pg_current_wal_lsn()");
      EXPECT_EQ(soon("select confirmed_flush_lsn >= '" + now + "' from pg_replication_slots", "t"),
                "t");
    }
    enter(kHead);
  }

  static constexpr const char* kBills = "select count(*) from shop.sale";

  static inline std::array<std::unique_ptr<ThrowAwayServer>, 3> servers_;
  ThrowAwayServer* head_ = nullptr;
  int at_ = kHead;
};

TEST_F(ChainTest, AddsShopsUpAndChargesTheirCards) {
  const auto first = joinAt(1), second = joinAt(2);
  const auto sell = [&] {
    for (Joined* till : {first.get(), second.get()}) {
      till->till.sell(10);
      EXPECT_GE(till->bring(), 0);
    }
  };
  sell();
  EXPECT_EQ(soon(kBills, "2"), "2");
  EXPECT_EQ(soon("select string_agg(shop || ':' || trim_scale(quantity), ' ' order by shop)"
                 " from shop.stock_by_shop where item = 'b'",
                 "1:990 2:990"),
            "1:990 2:990")
      << "each shop's goods are its own";

  server_->kill();
  sell();
  server_->start();
  EXPECT_EQ(soon(kBills, "4"), "4") << "shops sell on, and head office catches up";

  server_->copy();
  sell();
  EXPECT_EQ(soon(kBills, "6"), "6");
  forgetSent();
  server_->putBack();
  first->till.sell(10);
  first->bring();
  EXPECT_EQ(soon(kBills, "6"), "6") << "the shop's next fact brings the forgotten ones along";
  EXPECT_EQ(value("select count(*) from shop.missing(1)"), "0");
  EXPECT_EQ(value("select shop.fill(2) > 0"), "t");
  EXPECT_EQ(value("select count(*) from shop.missing(2)"), "0");
  sell();
  EXPECT_EQ(soon(kBills, "9"), "9") << "what was fetched does not stop what comes";

  EXPECT_EQ(balance("8001"), "10000") << "a card is the same in all shops";
  EXPECT_EQ(chargeAtOnce(), 6);
  EXPECT_EQ(balance("8001"), "1000");
  server_->stop();
  enter(1);
  {
    ServerLine line(tillParameters(address(1, "password"), ""));
    EXPECT_EQ(charge(line, "away"), "no answer");
  }
  enter(kHead);
  server_->start();
  expectSound();
}
