#include <filesystem>

#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "server/ServerSteps.h"
#include "sync/ShopServerFixture.h"

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

struct UploadTest : ShopServerFixture {
  /// An entry that no till of this version writes, with its right place in the chain.
  static void addEntry(Connection& till, const std::string& kind, const std::string& body,
                       const std::string& touches = {}) {
    Rows last = till.query("select * from fact order by seq desc limit 1");
    ASSERT_TRUE(last.next());
    JournalEntry entry = JournalEntry::fromRow(last);
    const std::string before = entry.hash;
    ++entry.seq;
    entry.kind = kind;
    entry.body = body;
    entry.touches = touches;
    till.run(
        "insert into fact (seq, time, till, operator, approver, kind, touches, body, hash)"
        " values (?, ?, ?, ?, ?, ?, ?, ?, ?)",
        entry.seq, entry.time, entry.till, entry.operatorId, entry.approver, entry.kind,
        entry.touches, entry.body, entry.sealedBehind(before));
  }
};

TEST_F(UploadTest, BringsWhatHappenedAtEachTill) {
  const auto first = join(1, "first"), second = join(2, "second");
  const auto [bill, due] = first->till.sell(3);
  EXPECT_EQ(bill, 10'000'001);
  first->till.takeBack(bill, 1.5);
  second->till.sell(2, "8001");
  second->till.topUp("8002", 50);
  const auto foreign = second->till.sell(0.25, "8001");
  EXPECT_EQ(foreign.first, 20'000'002);
  first->till.sell(1, "8001");
  EXPECT_EQ(second->upload->pendingBills(), 2);
  for (const auto& each : {&first, &second}) EXPECT_GT((*each)->bring(), 0);
  EXPECT_EQ(second->upload->pendingBills(), 0);
  second->till.sell(1);
  EXPECT_EQ(Upload(*second->till.shop, *second->line, second->upload->atServer()).pendingBills(), 1)
      << "known before the server answers";

  EXPECT_EQ(value("select trim_scale(amount) from shop.sale where bill = 10000001"), due);
  EXPECT_EQ(stock(), "995.25") << "of 1000, whoever sold them";
  EXPECT_EQ(balance("8001"), "9983.52") << "charged by both tills";
  EXPECT_EQ(balance("8002"), "10050");
  EXPECT_EQ(value("select trim_scale(quantity) from shop.taken_back"), "1.5");
  expectSound();
  EXPECT_EQ(first->bring(), 0) << "what is known is not told again";
  owner->ask("update shop.sale set amount = 1");
  EXPECT_THAT(shop().check(true).faults, ElementsAre(HasSubstr("已按记录重新做好")));
  expectSound();
}

TEST_F(UploadTest, TakesNoEntryTwiceAndLeavesNoneOut) {
  const auto till = join(1, "till");
  till->bring();
  const int bill = till->till.sell(1).first;
  const std::vector<JournalEntry> entries = nextEntries(*till->till.shop, {0, {}});
  ShopCalls calls(*till->line, 1);
  const char* const kWritten = "select xmin from shop.till";
  for (int again = 0; again < 3; ++again) {  // the answer to the first was lost
    const std::string before = value(kWritten);
    EXPECT_EQ((again < 2 ? calls.put(1, "", entries, {}) : calls.hello({})).kind,
              ServerAnswer::kAnswer);
    EXPECT_NE(value(kWritten), before) << "only a write waits for the server's second machine";
  }
  EXPECT_EQ(bills(bill), "1");
  till->till.sell(1);
  std::vector<JournalEntry> rest =
      nextEntries(*till->till.shop, {entries.back().seq, entries.back().hash});
  EXPECT_EQ(calls.put(1, "another", rest, {}).state, "TL004");
  rest.erase(rest.begin());
  EXPECT_EQ(calls.put(1, entries.back().hash, rest, {}).state, "TL003");
  EXPECT_EQ(calls.put(7, entries.back().hash, rest, {}).state, "TL002");
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "2");
  expectSound();
}

TEST_F(UploadTest, FillsAServerThatWasPutBack) {
  const auto till = join(1, "till");
  till->till.sell(1);
  till->bring();
  server_->copy();
  const int after = till->till.sell(1).first;
  till->bring();
  server_->putBack();
  EXPECT_EQ(bills(after), "0");
  EXPECT_EQ(till->bring(), 0) << "an idle till asks only now and then";
  till->bring(std::chrono::seconds(4));
  till->bring(std::chrono::seconds(8));  // the line was gone
  EXPECT_EQ(bills(after), "1");
  expectSound();
}

TEST_F(UploadTest, KeepsBothHistoriesOfAFileThatWasPutBack) {
  auto till = join(1, "till");
  till->till.sell(1);
  till->bring();
  const std::string file = folder.file("till"), copy = folder.file("copy");
  till.reset();
  fs::copy_file(file, copy);
  const auto reopened = [&] {
    auto opened = std::make_unique<Joined>(file, 1);
    opened->connect();
    return opened;
  };
  const auto putBack = [&] {
    till.reset();
    fs::copy_file(copy, file, fs::copy_options::overwrite_existing);
    till = reopened();
  };
  till = reopened();
  int lost = 0;
  for (int bill = 0; bill < 3; ++bill) lost = till->till.sell(1).first;
  till->bring();
  putBack();
  till->till.sell(2);  // fewer than the server has: told apart by their hashes alone
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "5");
  EXPECT_GT(till->till.sell(1).first, lost) << "no number is given out again";
  till->bring();
  EXPECT_EQ(bills(lost), "1");
  EXPECT_EQ(stock(), "993") << "all that was sold has gone";
  expectSound();

  putBack();
  till->till.sell(3);
  {
    Transaction many(*till->till.shop);
    for (int entry = 0; entry < 5001; ++entry)
      addEntry(*till->till.shop, "logged_off", R"({"v":1})");
    many.commit();
  }
  while (till->bring() > 1) continue;  // what both have lies further back than is told at once
  EXPECT_EQ(value("select count(*) from shop.sale"), "7");
  putBack();
  till->till.sell(4);
  EXPECT_EQ(till->bring(), -1) << "a third history in a day is one file on two machines";
  EXPECT_EQ(value("select count(distinct epoch) from shop.fact"), "3");
  till.reset();
  till = join(1, "till", true);
  EXPECT_GT(till->bring(), 0) << "the owner has let it join anew";
  EXPECT_EQ(value("select count(*) from shop.sale"), "8");
  expectSound();
}

TEST_F(UploadTest, KeepsWhatItCannotReadAndGoesOn) {
  std::string steps;
  for (const char* step : serverSteps()) steps += step;
  for (const EntryKindName& kind : entryKinds())
    EXPECT_NE(steps.find("'" + std::string(kind.key) + "'"), std::string::npos) << kind.key;
  const auto till = join(1, "till");
  Connection& file = *till->till.shop;
  addEntry(file, "bill_settled", "no JSON");
  addEntry(file, "bill_settled", R"({"bill":{"id":"1","amount":"much"},"lines":[],"v":1})");
  addEntry(file, "bill_settled", R"({"bill":{},"v":1})");
  addEntry(file, "flown_to_the_moon", R"({"v":1})");
  addEntry(file, "logged_in", R"({"v":2})");
  addEntry(file, "goods_returned", R"({"return":[1],"item":"\u0000","v":1})");
  addEntry(file, "logged_in", R"({"v":1})", std::string("a\0b\xff", 4));
  addEntry(file, "stock_counted", R"({"stock":"none","v":1})");
  const std::string longText(3'000'000, 'x');
  addEntry(file, "card_charged", R"({"card":{"number":")" + longText + R"(","by":"1"},"v":1})");
  const int bill = till->till.sell(1).first;
  till->bring();
  EXPECT_EQ(till->failures, 0);
  EXPECT_EQ(bills(bill), "1");
  EXPECT_EQ(value("select count(*) from shop.fault"), "8");
  EXPECT_EQ(shop().tills().at(0).faults, 8);
  EXPECT_THAT(shop().check(false).faults, ElementsAre(HasSubstr("第")))
      << "of the entry with signs that no server holds";
}

// A server that is out of room has done nothing, and the till asks again.
TEST_F(UploadTest, WaitsForAServerInTrouble) {
  const auto till = join(1, "till");
  till->till.sell(1);
  owner->run(
      "create function full_disk() returns trigger language plpgsql as $$ begin"
      " raise disk_full; end $$;"
      "create trigger full_disk before insert on shop.sale for each row execute function"
      " full_disk()",
      ServerLine::kPatience);
  EXPECT_EQ(till->bring(), 50);
  EXPECT_EQ(value("select count(*) from shop.fault"), "0");
  owner->run("drop trigger full_disk on shop.sale; drop function full_disk", ServerLine::kPatience);
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "1");
  server_->kill();
  server_->start();
  till->till.sell(1);
  till->bring();
  EXPECT_EQ(value("select count(*) from shop.sale"), "2");
}
