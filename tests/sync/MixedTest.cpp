#include <fstream>
#include <iterator>
#include <utility>

#include "server/ServerSteps.h"
#include "store/Schema.h"
#include "sync/ShopServerFixture.h"

// Server and tills are not brought to a new version at the same moment: the server comes first, and
// the tills one by one; where the order was another one, nothing is lost either.
struct MixedTest : ShopServerFixture {
  static constexpr int kFirstVersion = 4;  ///< steps that the first version's server has taken

  void layDownFirstVersion() {
    server_->makeEmpty();
    owner = std::make_unique<ServerLine>(server_->owner());
    owner->run(kServerRoles, ServerLine::kPatience);
    for (int step = 1; step <= kFirstVersion; ++step) {
      const std::string number = std::to_string(step);
      const ServerAnswer taken =
          owner->run("begin; set local role shop_keeper;\n" +
                         std::string(serverSteps().at(static_cast<std::size_t>(step - 1))) +
                         "\ninsert into shop.step (number) values (" + number + "); commit",
                     ServerLine::kPatience);
      ASSERT_TRUE(taken.isDone()) << taken.text;
    }
  }
};

TEST_F(MixedTest, TakesWhatTheFirstVersionsTillsWrite) {
  std::ifstream file(FIRST_VERSION_ENTRIES);
  const std::string entries{std::istreambuf_iterator<char>(file), {}};
  join(1, "till");
  ServerLine till(tillParameters(address(1, "password"), ""));
  const ServerAnswer greeted = till.ask(
      "select epoch, applied, hash from api.hello($1, $2, $3, $4)", {"1", "0", "0", "1.0.0"});
  ASSERT_TRUE(greeted.isDone()) << greeted.text;
  const ServerAnswer charged = till.ask("select outcome, balance from api.charge($1, $2, $3, $4)",
                                        {"1", "a key", "8001", "1"});
  EXPECT_EQ(charged.rows.at(0).at(0), "unknown_card");
  const ServerAnswer put =
      till.ask("select $2, applied, hash from api.put($1, $2::integer, $3, $4, $5, $6)",
               {"1", "1", "", "0", "0", entries});
  ASSERT_TRUE(put.isDone()) << put.text;
  EXPECT_EQ(value("select string_agg(what, ' ') from shop.fault"), "(null)");
  EXPECT_EQ(value("select count(*) || ' ' || trim_scale(sum(amount)) from shop.sale"), "3 20.15");
  EXPECT_EQ(stock(), "994.5") << "of 1000, with half a piece taken back";
  EXPECT_EQ(balance("8001"), "10043.28");
  EXPECT_EQ(balance("8002"), "10000");
  EXPECT_EQ(value("select string_agg(state, ' ' order by state) from shop.charge"),
            "settled voided");
  expectSound();
}

// As they are written in the first version's program, with what it gives to them: a server keeps
// each function that it calls.
TEST_F(MixedTest, AnswersEveryQuestionOfTheFirstVersionsTills) {
  const std::pair<const char*, ServerAnswer::Row> kQuestions[] = {
      {"select epoch, applied, hash from api.hello($1, $2, $3, $4)", {"1", "0", "0", "1.0.0"}},
      {"select $2, applied, hash from api.put($1, $2::integer, $3, $4, $5, $6)",
       {"1", "1", "", "0", "0", "[]"}},
      {"select epoch, highest_bill from api.new_epoch($1, $2, $3, $4)", {"1", "1", "{}", "{}"}},
      {"select outcome, balance from api.charge($1, $2, $3, $4)", {"1", "key", "8001", "1"}},
      {"select generation, horizon, changes, whole from api.walk($1, $2, $3, $4, $5, $6)",
       {"1", "", "0", "", "", "500"}},
      {"select tx, tbl, key, changes from api.changes($1, $2, $3, $4, $5, $6)",
       {"1", "GENERATION", "0", "", "", "500"}},
      {"select outcome, holds from api.return_line($1, $2, $3, $4, $5)",
       {"1", "key", "20000001", "1", "1"}},
      {"select record, holds from api.bill($1, $2)", {"1", "20000001"}},
      {"select api.hold($1, $2)", {"1", "{}"}},
      {"select at_till, bill, basket from api.held_bills($1)", {"1"}},
      {"select outcome, basket from api.want($1, $2, $3, $4)", {"1", "key", "2", "20000001"}},
      {"select what, key, other, bill, basket from api.errands($1)", {"1"}},
      {"select key, at_till, bill, line, quantity from api.returned_elsewhere($1)", {"1"}},
  };
  join(1, "till");
  ServerLine till(tillParameters(address(1, "password"), ""));
  std::string generation;
  for (auto [text, values] : kQuestions) {
    for (auto& each : values) {
      if (each == "GENERATION") each = generation;
    }
    const ServerAnswer answer = till.ask(text, values);
    EXPECT_TRUE(answer.isDone()) << text << ": " << answer.text;
    if (std::string(text).find("api.walk") != std::string::npos && answer.isDone())
      generation = answer.rows.at(0).at(0).value_or("");
  }
}

// A data file of the version before, which its till opens after the program's upgrade.
TEST_F(MixedTest, OpensTheFileOfATillThatJoinedInTheVersionBefore) {
  const auto till = join(1, "till");
  const int bill = till->till.sell(1).first;
  const DataSource source = till->till.shop->source();
  constexpr std::size_t kLinkStep = 8;
  till->till.shop->runScript(
      "create table was as select one, till, epoch, host, port, database, password, authority from"
      " link; drop table link;" +
      schemaSteps().at(kLinkStep - 1) +
      "insert into link select * from was; drop table was; pragma user_version = 11");
  till->upload.reset();
  till->till.shop = openDataFile(source);
  EXPECT_TRUE(lastContact(*till->till.shop).has_value()) << "its days begin now";
  till->connect();
  till->bring();
  EXPECT_EQ(bills(bill), "1");
}

TEST_F(MixedTest, SellsOnAtAServerOfTheFirstVersionAndWhenItGetsANewOne) {
  layDownFirstVersion();
  const auto till = join(1, "till"), other = join(2, "other");
  for (const bool isNew : {false, true}) {
    if (isNew) {
      shop().upgrade();
    }
    for (const auto& each : {&till, &other}) {
      const int bill = (*each)->till.sell(1, "8001").first;
      (*each)->till.takeBack(bill, 0.5);
      (*each)->till.topUp("8002", 10);
      for (int wait = 0; wait < 3; ++wait) (*each)->bring(std::chrono::seconds(4));
      EXPECT_EQ(bills(bill), "1");
    }
    EXPECT_EQ(stock(), isNew ? "998" : "999");
    EXPECT_EQ(balance("8002"), isNew ? "10040" : "10020");
    if (isNew) {
      expectSound();
    } else {
      EXPECT_THROW(shop().check(false), Failure) << "it is to be upgraded first";
    }
  }
  EXPECT_EQ(value("select string_agg(what, ' ') from shop.fault"), "(null)");
}
