#include <gmock/gmock.h>

#include <memory>
#include <optional>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Dialect.h"
#include "store/FragmentIndex.h"
#include "store/Literal.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

using namespace std::string_literals;

namespace {

class FragmentTest : public testing::Test {
 protected:
  FragmentTest() { connection_ = createDataFile(source_); }

  using Spec = std::optional<std::string>;

  int random(int below) {
    random_ = random_ * 1664525 + 1013904223;
    return static_cast<int>((random_ >> 8) % static_cast<std::uint32_t>(below));
  }

  // Few characters, so that fragments repeat; the broken ones are read as the engine reads them.
  std::string randomText(int characters, bool withWildcards) {
    static const std::vector<std::string> kPieces = {
        "a",  "A", "b", "0", "5",  "-",  "*",  " ",  "'",        "\"",       "水",
        "矿", "é", "É", "😀", "\"", "or", "NO", "ab", "\xE6\xB0", "\xC2\xAD", "\x81"};
    std::string text;
    for (int i = 0; i < characters; ++i) {
      const bool isWildcard = withWildcards && random(6) == 0;
      text += isWildcard
                  ? (random(2) == 0 ? "%" : "_")
                  : kPieces[static_cast<std::size_t>(random(static_cast<int>(kPieces.size())))];
    }
    return text;
  }

  void changeSomething() {
    const int id = random(300) + 1;
    const Spec spec = random(10) == 0 ? Spec() : Spec(randomText(random(8), true));
    switch (random(5)) {
      case 0:
        connection_->run("delete from tmda where id = ?", id);
        connection_->run("delete from spda where id = ?", id);
        break;
      case 1:
        connection_->run("update tmda set ggxh = ? where id = ?", spec, id);
        connection_->run("update spda set f_Ggxh = upper(f_Ggxh), f_sphh = ? where id = ?",
                         randomText(3, false), id);
        break;
      case 2:
        connection_->run("update or ignore tmda set id = ? where id = ?", id, random(300) + 1);
        break;
      default:
        addGoods(spec);
    }
  }

  void addGoods(const Spec& spec) {
    const int key = ++goods_;
    connection_->run("insert or fail into tmda (sptm, spbm, ggxh) values (?, ?, ?)", key, key,
                     spec);
    connection_->run("insert into spda (f_spbm, f_sphh, f_Ggxh) values (?, ?, ?)", key,
                     randomText(random(6), false), spec);
  }

  static std::vector<std::int64_t> ids(Rows rows) {
    std::vector<std::int64_t> found;
    while (rows.next()) found.push_back(rows.whole("id").value());
    return found;
  }

  // The same rows in the same order as a scan of the table, which is the meaning of "like".
  void expectEqualsScan(const std::string& fragment) {
    const std::string pattern = "%" + fragment + "%";
    const auto compare = [&](const std::string& statement, const char* scan) {
      ASSERT_EQ(ids(connection_->Read(statement + likeFragment(fragment) + " ")),
                ids(connection_->query(scan, pattern)))
          << statement << fragment;
    };
    compare("select * from tmda  where ggxh like",
            "select id from tmda where +ggxh like ? order by id");
    compare("select * from spda where f_sphh like",
            "select id from spda where +f_sphh like ? order by id");
    compare("select * from spda where f_xsdj is null and spda.f_Ggxh  like ",
            "select id from spda where +f_Ggxh like ? order by id");
    compare("select tmda.id from tmda inner join spda on spbm=spda.f_spbm where spda.f_Ggxh  like ",
            "select tmda.id from tmda join spda on spbm = f_spbm where +f_Ggxh like ?");
  }

  std::string plan(const std::string& statement) {
    EngineStatement made = translate(statement);
    for (const Value& value : made.values) {  // the plan is the same for any text
      const auto* text = std::get_if<std::string>(&value);
      made.text.replace(made.text.find('?'), 1, text ? "'a'" : "1");
    }
    Rows rows = connection_->query(("explain query plan " + made.text).c_str());
    std::string steps;
    while (rows.next()) steps += rows.text("detail") + "\n";
    return steps;
  }

  TemporaryFolder folder_;
  DataSource source_{folder_.file("pos.mdb"), ""};
  std::unique_ptr<Connection> connection_;
  std::uint32_t random_ = 1;
  int goods_ = 0;
};

TEST_F(FragmentTest, FindsWhatAScanFindsWhateverWasWrittenAndTyped) {
  for (int round = 0; round < 60; ++round) {
    Transaction transaction(*connection_);
    for (int change = 0; change < 25; ++change) changeSomething();
    if (round % 7 == 3) updateFragmentIndex(*connection_);
    if (round % 5 != 4) transaction.commit();  // else all of it is taken back
    for (int look = 0; look < 60; ++look) expectEqualsScan(randomText(1 + look % 6, look % 2 == 0));
  }
  EXPECT_TRUE(fragmentIndexIsRight(*connection_));
  updateFragmentIndex(*connection_);
  EXPECT_TRUE(fragmentIndexIsRight(*connection_));
  connection_->runScript("vacuum");
  EXPECT_TRUE(fragmentIndexIsRight(*connection_));
}

TEST_F(FragmentTest, AnImportLeavesNoListBehindAndAnotherProgramsIsTakenInAtTheNextStart) {
  const auto written = [this] { return connection_->Open("select id from tmda_written").count(); };
  const auto import = [this](int rows) {
    for (int row = 0; row < rows; ++row) addGoods("GX" + std::to_string(goods_));
  };
  {
    Transaction transaction(*connection_);
    import(2000);
    updateFragmentIndex(*connection_);
    transaction.commit();
  }
  EXPECT_EQ(written(), 0U);
  import(5);
  connection_.reset();
  connection_ = openDataFile(source_);
  EXPECT_EQ(written(), 5U) << "a few are not worth a write at every start";
  import(200);
  connection_.reset();
  connection_ = openDataFile(source_);
  EXPECT_EQ(written(), 0U);
  EXPECT_TRUE(fragmentIndexIsRight(*connection_));
  EXPECT_EQ(connection_->Open("select * from tmda where ggxh like '%gx19%'").count(), 111U);
}

TEST_F(FragmentTest, LookUpsAreDrivenByTheIndex) {
  const std::string sales =
      "select sellproducts.id, spda.f_sptm from sellProducts inner join spda on "
      "sellproducts.bm=spda.f_spbm where spda.f_Ggxh  like '%abc%'  and  insert_date>#2026-11-22# "
      "and insert_date<=#2026-11-23# order by sellId,insert_Date ";
  for (const char* statement : {"select * from tmda  where ggxh like'%abc%' ",
                                "select * from spda where f_sphh like'%abc%' "}) {
    EXPECT_THAT(plan(statement), testing::HasSubstr("INTEGER PRIMARY KEY (rowid=?)")) << statement;
    EXPECT_THAT(plan(statement), testing::HasSubstr("VIRTUAL TABLE INDEX")) << statement;
  }
  // A line of other goods is passed over by its code, before its goods are read.
  const std::string steps = plan(sales);
  const std::size_t candidates = steps.find("VIRTUAL TABLE INDEX");
  EXPECT_LT(steps.find("sellProducts_time (insert_Date>? AND insert_Date<?)"), candidates);
  EXPECT_LT(candidates, steps.find("spda_key (f_spbm=?)")) << steps;
}

TEST_F(FragmentTest, TheIndexIsNotAskedWhereThatWouldChangeTheMeaning) {
  for (const char* statement :
       {"not ggxh like '%ab%'", "not (1 = 2 or ggxh like '%ab%')", "ggxh not like '%ab%'",
        "ggxh like '%ab%' is null", "(ggxh like '%ab%') is null", "spmc || ggxh like '%ab%'",
        "spbm between '1' and ggxh like '%ab%'", "ggxh like '%a%b'", "ggxh like '%ab%' escape 'b'",
        "case when 1 = 1 and ggxh like '%ab%' then 0 end is null"}) {
    const std::string text = translate("select * from tmda where " + std::string(statement)).text;
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("docid"))) << statement;
  }
  EXPECT_THAT(translate("select * from tmda t where ggxh like '%ab%'").text,
              testing::Not(testing::HasSubstr("docid")));
}

}  // namespace
