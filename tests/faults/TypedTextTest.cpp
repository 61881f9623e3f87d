#include <sqlcipher/sqlite3.h>

#include <iostream>
#include <random>
#include <set>
#include <sstream>

#include "Disk.h"
#include "LongRun.h"
#include "TillFixture.h"
#include "base/Text.h"
#include "reports/SearchCriteria.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsLogin.h"
#include "saleslib/TopUpBooks.h"
#include "shop/Importer.h"
#include "shop/Refusal.h"
#include "store/StoreError.h"

namespace {

/// Hears the text of every statement that the engine begins, on every connection opened while it
/// lives. Bound values are no part of it.
class StatementSpy {
 public:
  StatementSpy() {
    heard_.clear();
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&listen));
  }
  ~StatementSpy() { sqlite3_reset_auto_extension(); }

  static std::set<std::string> take() { return std::exchange(heard_, {}); }

 private:
  static int listen(sqlite3* engine, char**, const void*) {
    return sqlite3_trace_v2(engine, SQLITE_TRACE_STMT, &hear, nullptr);
  }
  static int hear(unsigned, void*, void* statement, void*) {
    const char* text = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
    if (text != nullptr) heard_.insert(text);
    return 0;
  }
  static inline std::set<std::string> heard_;
};

/// Both must be there before the fixture opens its data file. The disk spares the waiting.
struct WithSpy {
  Disk disk;
  StatementSpy spy;
};

/// The texts between the bars, blanks counted.
std::vector<std::string> textsIn(const std::string& all) {
  std::vector<std::string> each;
  std::istringstream in(all);
  for (std::string text; std::getline(in, text, '|');) each.push_back(text);
  return each;
}

// Every kind of text that the places tell apart: barcodes and short codes, known and unknown, short
// and long, numbers and dates, wildcards, nothing.
std::vector<std::string> harmlessTexts() {
  std::vector<std::string> texts = textsIn(
      "|5|-3|1.5|00|ab|a b c|茶|矿泉水|QB-01|8001|550ml|abcdefgh|中文中文中文|6901234567892|"
      "6900000000029|2026-11-22|%%|a%");
  texts.push_back(std::string(300, 'a'));
  return texts;
}

// A row for each kind: quotes; statements behind them; wildcards; names, parameters and values of
// statements; their comments and ends; operators of the text search; look-alikes of all these. Then
// bytes: NUL, control characters, broken UTF-8, GBK characters with a quote or a backslash as their
// second byte, and lengths.
std::vector<std::string> hostileTexts() {
  std::vector<std::string> texts = textsIn(
      R"('|''|'''|"|""|\|\'|`|)"
      R"(' or '1'='1|' or 1=1 --|8001' --|x'; drop table sell; --|x') or ('1'='1|'+''+'|" or ""="|)"
      R"(%|_|%' or '%'='|_____|*|)"
      R"([|]|[bh]|?|??|?1|:bh|@bh|$bh|#|#2026-11-22#|#1#' or 1=1|null|0x27|char(39)|1e999|1 or 1=1|)"
      R"(--|-- x|/*|*/|/* x */|;|; select 1|1;1|or 1=1|\' or 1=1 --|9223372036854775808|)"
      R"(NEAR|a NEAR b|a AND b|NOT a|a* OR b*|"a|(a|a)|ggxh:a|-a|^a|{a}|)"
      R"(＇|＇ or ＇1＇=＇1|‘|’ or ’1’=’1|ʼ|′|％|＿|；|－－|＂|＼|１' or 1|😀')");
  texts.emplace_back("'||(select card from member)||'");
  for (const char* bytes :
       {"\xBF\x27 or 1=1 --", "\xBF\x5C\x27", "\xD5\x27", "\x81\x5C", "\xA1\x27\xA1\x5C",
        "\xC0\xA7 or 1=1", "\xE0\x80\xA7", "\xF0\x80\x80\xA7", "\xFF\xFE", "\xE4\xB8",
        "\r\n' or 1=1", "a\tb", "\x1A", "\b'"})
    texts.emplace_back(bytes);
  texts.emplace_back("a\0b' or 1=1", 11);
  texts.emplace_back(1, '\0');
  texts.emplace_back(300, '\'');
  texts.emplace_back(2000, '%');
  return texts;
}

class TypedTextTest : public WithSpy, public TillFixture {
 protected:
  TypedTextTest() {
    till.choice = 0;
    till.answers = QStringList(10000, "1");
    spy.take();
  }

  /// A place where a typed text enters statements.
  using Text = const std::string&;
  struct Place {
    const char* name;
    std::function<void(Text)> type;
    bool isSlow = false;  ///< on purpose: the hash of a password
  };

  std::vector<Place> places() {
    return {
        {"input line", [this](Text text) { ring(text); }},
        {"settlement: card number", [this](Text text) { pay(text, "Pw1"); }},
        {"settlement: card password", [this](Text text) { pay("8001", text); }},
        {"sales query: code", [this](Text text) { search(&SearchCriteria::code, text); }},
        {"sales query: bill", [this](Text text) { search(&SearchCriteria::billNo, text); }},
        {"sales query: category", [this](Text text) { search(&SearchCriteria::category, text); }},
        {"member's number or telephone",
         [this](Text text) { (void)pos.gMemberSvc.GetMember(text); }},
        {"top-up: card number and remark", [this](Text text) { topUp(text); }},
        {"new member", [this](Text text) { join(text); }},
        {"login", [this](Text text) { logIn(text); }, true},
        {"shop parameter", [this](Text text) { (void)pos.gSysParam.set("ShopName", text); }},
        {"imported goods", [this](Text text) { import(text); }}};
  }

  void logIn(Text text) {
    ClsLogin login;
    login.Conn(*pos.gConn);
    for (const std::string& number : {text, std::string("01")})
      EXPECT_FALSE(login.Check(number, text));
  }
  void ring(Text text) {
    enter(QString::fromStdString(text));
    if (session.sale().line()) press(kF4);
  }
  // With goods on the bill, so that the card is asked for and charged.
  void pay(Text number, Text password) {
    till.pay = [&](Settlement& payment) {
      const auto card = QString::fromStdString(number), word = QString::fromStdString(password);
      if (payment.payByCard(card, word) == CardOutcome::kDone) payment.sayCardPaid();
    };
    ring(kCrate);
    enter(kWater);
    enter("");
    press(kF12);
  }
  void search(std::string SearchCriteria::*field, Text text) {
    for (const char* code : {"", "550ml"}) {
      SearchCriteria wanted;
      wanted.end = {{2027, 1, 1}, 0, 0, 0};
      wanted.category = "饮料";
      wanted.code = code;
      wanted.*field = text;
      wanted.byCategory = field != &SearchCriteria::billNo && !wanted.category.empty();
      if (const auto statement = searchStatement(wanted)) pos.gConn->Open(*statement);
    }
  }
  void join(Text text) {
    ClsMember member;
    member.Init(*pos.gConn, 0, pos.clock);
    for (const auto& set : {&ClsMember::setBh, &ClsMember::setName}) (member.*set)("n" + text);
    for (const auto& set : {&ClsMember::setSex, &ClsMember::setAddress, &ClsMember::setOther,
                            &ClsMember::setPassword})
      (member.*set)(text);
    member.setPhone(text);
    if (!member.Save()) return;
    ++joined;
    const std::string id = std::to_string(member.Id());
    EXPECT_EQ(stored("other as v from member where id = " + id), text) << "stored as typed";
  }
  void topUp(Text typed) {
    for (const std::string& number : {storedCardNumber(typed), std::string("8001")}) {
      const CardOutcome wanted = number == "8001" ? CardOutcome::kDone : CardOutcome::kUnknown;
      EXPECT_EQ(pos.topUpBooks().store({number, {}, {}, {}, typed}).outcome, wanted);
    }
    EXPECT_TRUE(
        pos.gConn->query("select 1 from cardStored where bz = ? collate binary", typed).next());
  }
  void import(Text text) {
    const std::string quoted = replaced(text, "\"", "\"\"");
    std::istringstream csv("f_spbm,f_spmc,f_Ggxh\n9001,\"n" + quoted + "\",\"" + quoted + "\"\n");
    try {
      static_cast<void>(Importer(*pos.gConn, tableNamed("spda", now), {}).run(csv));
    } catch (const Failure&) {
      return;
    }
  }

  /// What only the till's own steps may change.
  std::string counts() {
    return stored(
        "(select count(*) from sqlite_master) || ' ' || (select count(*) from tmda)"
        " || ' ' || (select count(*) from sell where state = 1) || ' ' ||"
        " (select card from member where bh = '8001') || ' ' ||"
        " (select count(*) from operators) as v");
  }

  std::set<std::string> heardFrom(const Place& place, Text text) {
    spy.take();
    EXPECT_NO_THROW(place.type(text)) << testing::PrintToString(text);
    return spy.take();
  }

  int joined = 0;
};

/// Pieces of hostile texts put together anew.
std::string mixture(const std::vector<std::string>& hostile, std::mt19937& random) {
  std::string text;
  for (auto pieces = random() % 4 + 1; pieces > 0; --pieces)
    text += hostile[random() % hostile.size()].substr(0, random() % 12);
  return text;
}

TEST_F(TypedTextTest, ATypedTextStaysAValueEverywhere) {
  open();
  const std::vector<std::string> hostile = hostileTexts();
  std::vector<std::string> texts = hostile;
  std::mt19937 random(20261122);
  const std::size_t mixtures = longRun ? 5000 : 100;
  while (texts.size() < hostile.size() + mixtures) {
    const std::string text = mixture(hostile, random);
    // What is left of a text that names the card may be its number, which pays.
    if (text.find("8001") == std::string::npos) texts.push_back(text);
  }

  std::int64_t typed = 0;
  for (const Place& place : places()) {
    SCOPED_TRACE(place.name);
    std::set<std::string> known;
    for (const std::string& text : harmlessTexts()) known.merge(heardFrom(place, text));
    const std::string before = counts();
    for (std::size_t i = 0; i < texts.size(); i += place.isSlow ? 10 : 1) {
      for (const std::string& statement : heardFrom(place, texts[i]))
        ASSERT_TRUE(known.contains(statement))
            << testing::PrintToString(texts[i]) << " made another statement:\n"
            << statement;
      ++typed;
    }
    ASSERT_EQ(counts(), before) << "a text changed the books";
    till.messages.clear();
  }
  std::cout << "typed texts: " << typed << " at " << places().size()
            << " places, statements changed: 0; members with such names: " << joined << "\n";
}

}  // namespace
