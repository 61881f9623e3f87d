#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <functional>

#include "saleslib/ClsMember.h"
#include "saleslib/StoredCard.h"
#include "saleslib/SyncState.h"
#include "sync/ShopCards.h"
#include "sync/ShopServerFixture.h"

using std::chrono::steady_clock;

namespace {

/// The shop's server behind something that happens to a question.
struct Troubled : CardAuthority {
  explicit Troubled(CardAuthority& server_) : server(server_) {}
  bool isAway() const override { return server.isAway(); }
  Answer charge(const Charge& charge) override {
    asked = charge;
    return trouble();
  }
  Answer pass() { return server.charge(asked); }

  CardAuthority& server;
  Charge asked;
  std::function<Answer()> trouble = [this] { return pass(); };
};

struct Killed {};

/// A server that takes lines and says nothing.
class DeafServer {
 public:
  DeafServer(const std::string& folder, int port) {
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    (folder + "/.s.PGSQL." + std::to_string(port)).copy(place.sun_path, sizeof place.sun_path - 1);
    EXPECT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    EXPECT_EQ(listen(socket_, 8), 0);
  }
  ~DeafServer() { close(socket_); }
  DeafServer(const DeafServer&) = delete;
  DeafServer& operator=(const DeafServer&) = delete;

 private:
  int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

}  // namespace

struct CardsTest : ShopServerFixture {
  /// A till of the shop whose cards the server decides about.
  struct LiveTill {
    explicit LiveTill(std::unique_ptr<Joined> joined_)
        : joined(std::move(joined_)),
          server(shopLink(*joined->till.shop).value(), joined->till.shop->source().path,
                 localTime) {
      till.cards = &way;
      joined->bring();
    }
    /// How the sale of so many, in yuan 4.05 and 1.333 for each, was to be paid by the first card.
    CardOutcome sell(double quantity) {
      till.sell(quantity, "8001");
      return till.outcome;
    }

    std::unique_ptr<Joined> joined;
    SellingTill& till = joined->till;
    ShopCards server;
    Troubled way{server};
  };

  static std::string charges(const char* condition) {
    return value("select count(*) from shop.charge where " + std::string(condition));
  }
};

TEST_F(CardsTest, SpendsACardOnceWhicheverTillAsks) {
  LiveTill first(join(1, "first")), second(join(2, "second"));
  EXPECT_EQ(first.sell(5000), CardOutcome::kDone);
  EXPECT_EQ(balance("8001"), "3330.95") << "before the bill is there";
  EXPECT_EQ(second.sell(5000), CardOutcome::kTooLittle);
  EXPECT_EQ(second.sell(1000), CardOutcome::kDone);
  server_->kill();
  server_->start();
  EXPECT_EQ(first.sell(0), CardOutcome::kDone) << "the line that broke is opened anew";
  first.way.trouble = [&first] {
    first.way.pass();
    return first.way.pass();
  };
  EXPECT_EQ(first.sell(0), CardOutcome::kDone);
  EXPECT_EQ(balance("8001"), "1985.8") << "asked twice, charged once";
  for (LiveTill* till : {&first, &second}) till->joined->bring();
  EXPECT_EQ(balance("8001"), "1985.8");
  EXPECT_EQ(charges("state = 'settled'"), "4");
  EXPECT_EQ(charges("state <> 'settled'"), "0");
  second.till.topUp("8001", 50);
  second.joined->bring();
  EXPECT_EQ(balance("8001"), "2035.8");
  expectSound();
}

TEST_F(CardsTest, KnowsACardsPasswordByItsHash) {
  const auto till = join(1, "till");
  Connection& file = *till->till.shop;
  ClsMember newer;
  newer.Init(file, 0, localTime);
  newer.setBh("8003");
  newer.setName("李");
  newer.setPassword("2222");
  ASSERT_TRUE(newer.Save()) << newer.ErrText();
  EXPECT_EQ(till->till.value("select count(*) as value from member where password like '$argon2%'"),
            "3");
  for (const auto& [card, password] : {std::pair("8001", "1111"), std::pair("8003", "2222")}) {
    EXPECT_EQ(provenCard(file, card, password).outcome, CardOutcome::kDone);
    EXPECT_EQ(provenCard(file, card, "1112").outcome, CardOutcome::kWrongPassword);
  }
}

TEST_F(CardsTest, TakesBackWhatWasNotAnswered) {
  LiveTill till(join(1, "till"));
  till.way.trouble = [&till] {
    till.way.pass();
    return CardAuthority::Answer{};
  };
  EXPECT_EQ(till.sell(1), CardOutcome::kNoAnswer);
  EXPECT_EQ(charges("state = 'open'"), "1");
  const auto killed = [&till]() -> CardAuthority::Answer {
    till.way.pass();
    throw Killed();
  };
  till.way.trouble = killed;
  EXPECT_THROW(till.sell(1), Killed);
  till.way.trouble = [] { return CardAuthority::Answer{}; };
  EXPECT_EQ(till.sell(1), CardOutcome::kNoAnswer);
  EXPECT_EQ(till.till.value("select count(*) as value from card_pending"), "1");
  till.till.begin();
  till.joined->bring();
  EXPECT_EQ(till.way.pass().kind, CardAuthority::Answer::kNone) << "it comes after it was given up";
  EXPECT_EQ(charges("state = 'voided'"), "3");
  EXPECT_EQ(balance("8001"), "10000");
  EXPECT_EQ(till.till.balance("8001"), "10000");
  EXPECT_EQ(till.till.value("select count(*) as value from card_pending"), "0");
  expectSound();

  till.way.trouble = killed;
  EXPECT_THROW(till.sell(1), Killed);
  join(1, "another", true);
  EXPECT_EQ(balance("8001"), "10000") << "what was asked went with the till's disk";
}

TEST_F(CardsTest, LetsTheOwnerRiskSoMuchWithoutAnAnswer) {
  LiveTill till(join(1, "till"));
  const auto lost = [&till] {
    till.way.pass();
    return CardAuthority::Answer{};
  };
  till.way.trouble = lost;
  till.till.set("OfflineCardLimit", "10");
  EXPECT_EQ(till.sell(1), CardOutcome::kNoAnswer) << "a limit alone allows nothing";
  till.till.set("OfflineCard", "1");
  EXPECT_EQ(till.sell(1), CardOutcome::kDone);
  EXPECT_EQ(till.sell(1), CardOutcome::kNoAnswer) << "more than 10 together";
  EXPECT_EQ(till.sell(0), CardOutcome::kDone);
  till.way.trouble = [&till] { return till.way.pass(); };
  EXPECT_EQ(till.sell(0), CardOutcome::kDone);
  till.way.trouble = [] { return CardAuthority::Answer{}; };
  EXPECT_EQ(till.sell(1), CardOutcome::kDone) << "the server was there again";
  till.joined->bring();
  EXPECT_EQ(balance("8001"), "9981.14");
  EXPECT_EQ(charges("state = 'settled' and asked is null"), "1") << "the bill is the proof";
  till.till.set("OfflineCardLimit", "30000");
  EXPECT_EQ(till.sell(9000), CardOutcome::kNoAnswer) << "more than the card was seen to hold";
  expectSound();
}

TEST_F(CardsTest, KeepsACashierWaitingTwoSecondsAtMost) {
  const auto joined = join(1, "till");
  ShopLink link = shopLink(*joined->till.shop).value();
  link.host = folder.path().string();
  const DeafServer deaf(link.host, link.port);
  const std::filesystem::path file = joined->till.shop->source().path;
  ShopCards cards(link, file, localTime);
  const auto seconds = [&cards] {
    const auto begun = steady_clock::now();
    EXPECT_EQ(cards.charge({"key", 1, "8001", Currency::fromYuan(1)}).kind,
              CardAuthority::Answer::kNone);
    return std::chrono::duration<double>(steady_clock::now() - begun).count();
  };
  const double waited = seconds();
  EXPECT_GT(waited, 1.9);
  EXPECT_LT(waited, 3) << "2.1 on a machine that has nothing else to do";
  SyncPlace(file).write({.contact = DateTime{Date{2026, 1, 1}}});
  EXPECT_LT(seconds(), 1) << "nobody has heard of the server since";
  joined->till.cards = &cards;
  joined->till.sell(1, "8001");
  EXPECT_EQ(joined->till.outcome, CardOutcome::kNoAnswer);
  EXPECT_EQ(joined->till.value("select count(*) as value from fact where kind = 'charge_voided'"),
            "0")
      << "what nobody asked for is not given up";
}
