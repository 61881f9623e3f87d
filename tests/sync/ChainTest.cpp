#include <array>
#include <atomic>
#include <fstream>
#include <iterator>
#include <regex>
#include <thread>
#include <vector>

#include "saleslib/ClsMember.h"
#include "server/Publishing.h"
#include "sync/Fetching.h"

/// Two shops and their head office, each with a server of its own. What is asked is asked at the
/// server that was entered last; head office is number 0. What the handbook's page has its reader
/// type there is read from it.
struct ChainTest : FetchingFixture {
  static constexpr int kHead = 0;

  static void SetUpTestSuite() {
    for (int at = kHead; at < 3; ++at) {
      server_ = std::make_unique<ThrowAwayServer>();
      server_->stop();
      server_->set("wal_level = logical");
      server_->set("wal_retrieve_retry_interval = '200ms'");
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
    for (const int number : {1, 2}) {
      type("select shop.add_shop", number);
      enter(number);
      server_->makeEmpty();
      owner = std::make_unique<ServerLine>(server_->owner());
      EXPECT_GT(shop().init(""), 0);
      type("select shop.join_chain", number);
      type("select shop.share_cards", number);
      enter(kHead);
      value("set client_min_messages = warning");
      type("create subscription", number);
      type("select shop.fill", number);
    }
  }

  /// The page's statement that begins so, as it is for that shop and with the ways of here.
  static void type(const std::string& beginning, int shop) {
    std::ifstream file(CHAIN_PAGE);
    const std::string page(std::istreambuf_iterator<char>(file), {});
    const std::size_t place = page.find("--command=\"" + beginning);
    ASSERT_NE(place, std::string::npos) << "the page has no " << beginning;
    const std::size_t begin = page.find('"', place) + 1;
    std::string text = page.substr(begin, page.find('"', begin) - begin);
    const auto replace = [&](const char* what, const std::string& by) {
      text = std::regex_replace(text, std::regex(what), by);
    };
    const std::string number = std::to_string(shop);
    replace("shop_1", "shop_" + number);
    replace(R"(\(1(?=[,)]))", "(" + number);
    replace(R"(sslmode=verify-full\s+sslrootcert=[^' ]+)", "");
    replace(R"(host=10\.0\.0\.10\s+dbname=till)", way(kHead));
    replace(R"(host=10\.0\.1\.10\s+dbname=till)", way(shop));
    value(text);
  }

  void enter(int number) {
    std::swap(server_, servers_.at(static_cast<std::size_t>(at_)));
    std::swap(server_, servers_.at(static_cast<std::size_t>(number)));
    at_ = number;
    owner = std::make_unique<ServerLine>(server_->owner());
  }
  static std::string way(int number) {
    const auto& away = servers_.at(static_cast<std::size_t>(number));
    const ThrowAwayServer& server = away ? *away : *server_;
    return "host=" + server.folder().string() + " port=" + std::to_string(server.port()) +
           " dbname=books";
  }
  std::unique_ptr<Joined> joinAt(int number) {
    enter(number);
    auto joined = join(1, "shop" + std::to_string(number));
    joined->bring();
    enter(kHead);
    return joined;
  }
  std::unique_ptr<Fetching> fetchAt(int number) {
    enter(number);
    auto till = std::make_unique<Fetching>(join(1, "shop" + std::to_string(number)));
    enter(kHead);
    return till;
  }
  /// The shop's server was away.
  void connectAgain(Fetching& till, int number) {
    enter(number);
    till.connect();
    enter(kHead);
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

  /// The office of that server changes its file and publishes it.
  void publishAt(int number, Connection& office, const std::string& change,
                 std::optional<int> shop = {}) {
    if (!change.empty()) office.runScript(change.c_str());
    enter(number);
    publish(*owner, office, shop, [](std::int64_t) {});
    enter(kHead);
  }
  std::unique_ptr<Connection> office(const char* name) {
    return createDataFile({folder.file(name), ""}, [](Connection&) {});
  }
  void follow(int number) {
    type("select shop.serve_shop", number);
    enter(number);
    type("select shop.follow_head_office", number);
    enter(kHead);
  }
  /// What the till in the end asks for 茶, 米, 油 and 盐.
  static std::string soonPrices(Fetching& till, const std::string& expected) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    std::string prices;
    do {
      till.bring();
      prices = till.price("691") + " " + till.price("692") + " " + till.price("693") + " " +
               till.price("694");
    } while (prices != expected && std::chrono::steady_clock::now() < patience);
    return prices;
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

  enter(2);
  server_->copy();
  sell();
  server_->putBack();
  type("select pg_drop_replication_slot", 2);
  enter(kHead);
  value("set client_min_messages = warning");
  for (const char* each : {"alter subscription shop_1 disable", "alter subscription shop_1 set",
                           "drop subscription", "create subscription", "select shop.fill"})
    type(each, 2);
  sell();
  EXPECT_EQ(soon(kBills, "13"), "13") << "a shop that was put back is heard again";
  expectSound();
}

/// On servers of its own.
struct ChainDownTest : ChainTest {};

TEST_F(ChainDownTest, BringsHeadOfficesGoodsToTheTillsOfItsShops) {
  const auto forAll = office("all"), forSecond = office("second"), own = office("own");
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values"
            " ('691', 'K1', '茶', 1.5), ('692', 'K2', '米', 1.5), ('693', 'K3', '油', 1.5)");
  publishAt(kHead, *forSecond,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('692', 'K2', '米', 9.9)", 2);
  publishAt(1, *own,
            "insert into tmda (sptm, spbm, spmc, xsdj) values"
            " ('691', 'K1', '茶', 5), ('694', 'K4', '盐', 3);"
            "insert into operators (id, name, code, password) values (1, '张三', '1', 'hash')");
  follow(1);
  follow(2);
  const auto first = fetchAt(1), second = fetchAt(2);
  EXPECT_EQ(soonPrices(*first, "1.5 1.5 1.5 3"), "1.5 1.5 1.5 3");
  EXPECT_EQ(soonPrices(*second, "1.5 9.9 1.5 (gone)"), "1.5 9.9 1.5 (gone)");

  enter(2);
  server_->stop();
  enter(kHead);
  publishAt(kHead, *forSecond, "update tmda set xsdj = 8", 2);
  publishAt(kHead, *forAll,
            "update tmda set xsdj = 2 where sptm = '691'; delete from tmda where sptm = '693'");
  EXPECT_EQ(soonPrices(*first, "2 1.5 (gone) 3"), "2 1.5 (gone) 3");
  enter(2);
  server_->start();
  connectAgain(*second, 2);
  EXPECT_EQ(soonPrices(*second, "2 8 (gone) (gone)"), "2 8 (gone) (gone)")
      << "a shop that was cut off catches up";

  publishAt(1, *own, "update tmda set xsdj = 6");
  EXPECT_EQ(soonPrices(*first, "2 1.5 (gone) 6"), "2 1.5 (gone) 6") << "head office's price counts";
  publishAt(kHead, *forAll, "delete from tmda where sptm = '691'");
  publishAt(kHead, *forSecond, "delete from tmda", 2);
  EXPECT_EQ(soonPrices(*first, "6 1.5 (gone) 6"), "6 1.5 (gone) 6") << "the shop's own price again";
  EXPECT_EQ(soonPrices(*second, "(gone) 1.5 (gone) (gone)"), "(gone) 1.5 (gone) (gone)");

  const std::string allThere =
      "select string_agg(shop::text, ' ' order by shop) from"
      " shop.following where connected and has_all";
  enter(1);
  server_->copy();
  enter(kHead);
  publishAt(kHead, *forAll, "update tmda set xsdj = 7 where sptm = '692'");
  EXPECT_EQ(soon(allThere, "1 2"), "1 2");
  enter(1);
  server_->putBack();
  connectAgain(*first, 1);
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('693', 'K3', '油', 4)");
  EXPECT_EQ(soonPrices(*first, "6 7 4 6"), "6 7 4 6")
      << "a shop that was put back gets what it has forgotten, too";

  enter(1);
  value("alter subscription masters_1 disable");
  enter(kHead);
  publishAt(kHead, *forAll,
            "insert into tmda (sptm, spbm, spmc, xsdj) values ('691', 'K1', '茶', 3)");
  enter(1);
  value("select shop.fetch_masters()");
  value("alter subscription masters_1 enable");
  enter(kHead);
  EXPECT_EQ(soon(allThere, "1 2"), "1 2") << "what was fetched does not stop what comes";

  server_->copy();
  publishAt(kHead, *forAll, "update tmda set xsdj = 99");
  EXPECT_EQ(soonPrices(*second, "99 99 99 (gone)"), "99 99 99 (gone)");
  server_->putBack();
  follow(1);
  follow(2);
  EXPECT_EQ(soonPrices(*second, "3 7 4 (gone)"), "3 7 4 (gone)");
  publishAt(kHead, *forAll, "update tmda set xsdj = 10 where sptm = '692'");
  EXPECT_EQ(soonPrices(*first, "99 10 99 6"), "99 10 99 6");
  EXPECT_EQ(soon("select string_agg(name, ' ') from shop.report_operators", "张三"), "张三");
  EXPECT_EQ(value("select count(*) from shop.fault"), "0");
}
