#include <random>

#include "saleslib/JournalEntry.h"
#include "saleslib/JournalKinds.h"
#include "sync/ShopServerFixture.h"

using testing::HasSubstr;

namespace {

/// Bodies that no till writes: what a till wrote, broken in many ways, and what never was one.
class Bodies {
 public:
  Bodies(std::vector<std::string> written, unsigned seed)
      : written_(std::move(written)), random_(seed) {}

  std::string next() {
    if (random_() % 8 == 0) return of(kStrange);
    std::string body = of(written_);
    for (auto faults = 1 + random_() % 3; faults > 0; --faults) breakOne(body);
    return body;
  }

 private:
  template <class List>
  std::string of(const List& list) {
    return *(std::begin(list) + static_cast<long>(random_() % std::size(list)));
  }
  void breakOne(std::string& body) {
    const std::size_t at = random_() % (body.size() + 1);
    switch (random_() % 5) {
      case 0:
        body.resize(at);
        break;
      case 1:
        body.insert(at, std::string(1 + random_() % 3, static_cast<char>(random_())));
        break;
      case 2:
        body.erase(at, random_() % 8);
        break;
      default:
        replaceValue(body, at);
    }
  }
  /// What stands between a colon and what ends a value.
  void replaceValue(std::string& body, std::size_t near) {
    const std::size_t colon = body.find(':', near);
    if (colon == std::string::npos) return;
    const std::size_t end = body.find_first_of(",}]", colon);
    body.replace(colon + 1, std::min(end, body.size()) - colon - 1, of(kValues));
  }

  static const inline std::vector<std::string> kValues = {"null",
                                                          "true",
                                                          "-1",
                                                          "1e400",
                                                          "1e-400",
                                                          "99999999999999999999",
                                                          "\"9e999\"",
                                                          "\"NaN\"",
                                                          "\"Infinity\"",
                                                          "\"-0\"",
                                                          "\"\"",
                                                          "\" 1\"",
                                                          "\"0x10\"",
                                                          "\"1,5\"",
                                                          "\"123456789012345678\"",
                                                          "\"2026-02-30 25:00:00\"",
                                                          "\"infinity\"",
                                                          "\"9999999-01-01\"",
                                                          "\"epoch\"",
                                                          "\"\\u0000\"",
                                                          "\"\\ud800\"",
                                                          "\"'; drop table shop.sale; --\"",
                                                          "[]",
                                                          "{}",
                                                          "[[[]]]",
                                                          "[1,\"2\",null]",
                                                          "{\"id\":\"1\",\"id\":\"2\"}",
                                                          "\"\xff\xfe\"",
                                                          "\"\xed\xa0\x80\"",
                                                          "\"\xf0\x9f\x92\xa9\""};
  static const inline std::vector<std::string> kStrange = {
      "",
      " ",
      "null",
      "7",
      "\"text\"",
      "[]",
      "[{}]",
      "{",
      std::string(1, '\0'),
      "\xef\xbb\xbf{}",
      std::string(20'000, '['),
      "{\"v\":" + std::string(5'000, '9') + "}",
      "{\"bill\":\"" + std::string(700'000, 'x') + "\",\"v\":1}",
      "{\"v\":-1}",
      "{\"v\":\"one\"}"};

  std::vector<std::string> written_;
  std::mt19937 random_;
};

void append(Connection& till, JournalEntry& last, const std::string& kind,
            const std::string& body) {
  const std::string before = last.hash;
  ++last.seq;
  last.kind = kind;
  last.body = body;
  last.hash = last.sealedBehind(before);
  till.run(
      "insert into fact (seq, time, till, operator, approver, kind, touches, body, hash)"
      " values (?, ?, ?, ?, ?, ?, ?, ?, ?)",
      last.seq, last.time, last.till, last.operatorId, last.approver, last.kind, last.touches,
      last.body, last.hash);
}

}  // namespace

struct BodiesTest : ShopServerFixture {};

// Whatever stands in an entry: it is kept, it is noted or it makes rows that the same entries make
// again, and what comes behind it arrives.
TEST_F(BodiesTest, StopsAtNone) {
  constexpr int kBodies = 600;
  const auto till = join(1, "till");
  const int sold = till->till.sell(2, "8001").first;
  till->till.takeBack(sold, 0.5);
  till->till.topUp("8002", 20);
  std::vector<JournalEntry> entries = nextEntries(*till->till.shop, {});
  std::vector<std::string> written;
  for (const JournalEntry& entry : entries) written.push_back(entry.body);
  Bodies bodies(written, 14);
  std::mt19937 random(8);
  {
    Transaction adding(*till->till.shop);
    for (int body = 0; body < kBodies; ++body) {
      const auto& kinds = entryKinds();
      const std::string kind = random() % 3 == 0 ? std::string(kinds[random() % kinds.size()].key)
                                                 : entries[random() % (entries.size() - 1)].kind;
      append(*till->till.shop, entries.back(), kind, bodies.next());
    }
    adding.commit();
  }
  const int last = till->till.sell(1).first;
  while (till->bring() == 50 && till->failures == 0) continue;
  EXPECT_EQ(till->failures, 0) << till->upload->fault();
  EXPECT_EQ(bills(last), "1");
  EXPECT_EQ(value("select count(*) from shop.fact"),
            till->till.value("select count(*) as value from fact"));
  EXPECT_EQ(value("select count(*) > 200 from shop.fault"), "t");
  EXPECT_THAT(shop().check(false).faults, testing::Not(testing::Contains(HasSubstr("账表"))))
      << "the same entries make the same rows";
}
