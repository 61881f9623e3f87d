#include "StoreFixture.h"
#include "store/Dialect.h"
#include "store/FragmentIndex.h"
#include "store/Literal.h"
#include "store/Transaction.h"

using testing::HasSubstr;

class FragmentTest : public StoreFixture {
 protected:
  using Spec = std::optional<std::string>;

  int random(int below) {
    random_ = random_ * 1664525 + 1013904223;
    return static_cast<int>((random_ >> 8) % static_cast<std::uint32_t>(below));
  }
  // Few characters, so that fragments repeat; the broken ones are read as the engine reads them.
  std::string randomText(int characters, bool withWildcards) {
    static constexpr const char* kPieces[] = {
        "a",  "A", "b", "0", "5",  "-",  "*",  " ",  "'",        "\"",       "水",
        "矿", "é", "É", "😀", "\"", "or", "NO", "ab", "\xE6\xB0", "\xC2\xAD", "\x81"};
    std::string text;
    for (int i = 0; i < characters; ++i) {
      const bool isWildcard = withWildcards && random(6) == 0;
      text += isWildcard ? (random(2) == 0 ? "%" : "_") : kPieces[random(std::size(kPieces))];
    }
    return text;
  }

  void addGoods(const Spec& spec) {
    const int key = ++goods_;
    connection->run("insert or fail into tmda (sptm, spbm, ggxh) values (?, ?, ?)", key, key, spec);
    connection->run("insert into spda (f_spbm, f_sphh, f_Ggxh) values (?, ?, ?)", key,
                    randomText(random(6), false), spec);
  }
  void changeSomething() {
    const int id = random(300) + 1, what = random(5);
    const Spec spec = random(10) == 0 ? Spec() : Spec(randomText(random(8), true));
    if (what > 2) return addGoods(spec);
    if (what == 2) {
      connection->run("update or ignore tmda set id = ? where id = ?", id, random(300) + 1);
    } else if (what == 1) {
      connection->run("update tmda set ggxh = ? where id = ?", spec, id);
      connection->run("update spda set f_Ggxh = upper(f_Ggxh), f_sphh = ? where id = ?",
                      randomText(3, false), id);
    } else {
      for (const char* table : {"tmda", "spda"})
        connection->run(("delete from " + std::string(table) + " where id = ?").c_str(), id);
    }
  }

  static std::vector<std::int64_t> ids(Rows rows) {
    std::vector<std::int64_t> found;
    while (rows.next()) found.push_back(rows.whole("id").value());
    return found;
  }
  // The same rows in the same order as a scan of the table, which is the meaning of "like".
  void expectEqualsScan(const std::string& fragment) {
    static constexpr std::pair<const char*, const char*> kLookUps[] = {
        {"select * from tmda  where ggxh like",
         "select id from tmda where +ggxh like ? order by id"},
        {"select * from spda where f_sphh like",
         "select id from spda where +f_sphh like ? order by id"},
        {"select * from spda where f_xsdj is null and spda.f_Ggxh  like ",
         "select id from spda where +f_Ggxh like ? order by id"},
        {"select tmda.id from tmda inner join spda on spbm=spda.f_spbm where spda.f_Ggxh  like ",
         "select tmda.id from tmda join spda on spbm = f_spbm where +f_Ggxh like ?"}};
    for (const auto& [lookUp, scan] : kLookUps)
      ASSERT_EQ(ids(connection->Read(lookUp + likeFragment(fragment) + " ")),
                ids(connection->query(scan, "%" + fragment + "%")))
          << lookUp << fragment;
  }

  std::string plan(const std::string& statement) {
    EngineStatement made = translate(statement);
    for (const Value& value : made.values) {  // the plan is the same for any text
      const bool isText = std::holds_alternative<std::string>(value);
      made.text.replace(made.text.find('?'), 1, isText ? "'a'" : "1");
    }
    Rows rows = connection->query(("explain query plan " + made.text).c_str());
    std::string steps;
    while (rows.next()) steps += rows.text("detail") + "\n";
    return steps;
  }

  std::uint32_t random_ = 1;
  int goods_ = 0;
};

TEST_F(FragmentTest, FindsWhatAScanFindsWhateverWasWrittenAndTyped) {
  for (int round = 0; round < 60; ++round) {
    Transaction transaction(*connection);
    for (int change = 0; change < 25; ++change) changeSomething();
    if (round % 7 == 3) updateFragmentIndex(*connection);
    if (round % 5 != 4) transaction.commit();  // else all of it is taken back
    for (int look = 0; look < 60; ++look) expectEqualsScan(randomText(1 + look % 6, look % 2 == 0));
  }
  EXPECT_TRUE(fragmentIndexIsRight(*connection));
  updateFragmentIndex(*connection);
  EXPECT_TRUE(fragmentIndexIsRight(*connection));
  connection->runScript("vacuum");
  EXPECT_TRUE(fragmentIndexIsRight(*connection));
}

TEST_F(FragmentTest, AnImportLeavesNoListBehindAndAnotherProgramsIsTakenInAtTheNextStart) {
  const auto import = [this](int rows) {
    Transaction transaction(*connection);
    for (int row = 0; row < rows; ++row) addGoods("GX" + std::to_string(goods_));
    if (rows > 1000) updateFragmentIndex(*connection);
    transaction.commit();
  };
  import(2000);
  EXPECT_EQ(count("tmda_written"), 0U);
  for (const auto& [rows, left] : {std::pair(5, 5U), {200, 0U}}) {
    import(rows);
    connection.reset();
    connection = openDataFile(source);
    EXPECT_EQ(count("tmda_written"), left) << "a few are not worth a write at every start";
  }
  EXPECT_TRUE(fragmentIndexIsRight(*connection));
  EXPECT_EQ(count("tmda where ggxh like '%gx19%'"), 111U);
}

TEST_F(FragmentTest, LookUpsAreDrivenByTheIndex) {
  for (const char* statement : {"select * from tmda  where ggxh like'%abc%' ",
                                "select * from spda where f_sphh like'%abc%' "})
    EXPECT_THAT(plan(statement), AllOf(HasSubstr("INTEGER PRIMARY KEY (rowid=?)"),
                                       HasSubstr("VIRTUAL TABLE INDEX")));
  // A line of other goods is passed over by its code, before its goods are read.
  const std::string steps = plan(
      "select sellproducts.id, spda.f_sptm from sellProducts inner join spda on "
      "sellproducts.bm=spda.f_spbm where spda.f_Ggxh  like '%abc%'  and  insert_date>#2026-11-22# "
      "and insert_date<=#2026-11-23# order by sellId,insert_Date ");
  const std::size_t candidates = steps.find("VIRTUAL TABLE INDEX");
  EXPECT_LT(steps.find("sellProducts_time (insert_Date>? AND insert_Date<?)"), candidates);
  EXPECT_LT(candidates, steps.find("spda_key (f_spbm=?)")) << steps;
}

TEST_F(FragmentTest, TheIndexIsNotAskedWhereThatWouldChangeTheMeaning) {
  for (const char* where : {"where not ggxh like '%ab%'", "where not (1 = 2 or ggxh like '%ab%')",
                            "where ggxh not like '%ab%'", "where ggxh like '%ab%' is null",
                            "where (ggxh like '%ab%') is null", "where spmc || ggxh like '%ab%'",
                            "where spbm between '1' and ggxh like '%ab%'", "where ggxh like '%a%b'",
                            "where ggxh like '%ab%' escape 'b'", "t where ggxh like '%ab%'",
                            "where case when 1 = 1 and ggxh like '%ab%' then 0 end is null"})
    EXPECT_THAT(translate("select * from tmda " + std::string(where)).text,
                Not(HasSubstr("docid")));
}
