#include "store/Dialect.h"

#include <gmock/gmock.h>

#include "store/Literal.h"
#include "store/StoreError.h"

using namespace std::string_literals;

namespace {

TEST(Dialect, MakesEveryLiteralAValue) {
  struct Case {
    std::string statement;
    const char* text;
    std::vector<Value> values;
  };
  const std::vector<Case> cases = {
      {"select * from tmda where sptm='6901234567892'",
       "select * from tmda where sptm=? ",
       {"6901234567892"s}},
      {"select [name] from [sellproducts] where name like '%it''s%';",
       "select \"name\" from \"sellproducts\" where name like ? ",
       {"%it's%"s}},
      {"where a=" + quotedText("it's \0 ?"s) + " or b like " + likeFragment("%'_"),
       "where a=?  or b like ? ",
       {"it's \0 ?"s, "%%'_%"s}},
      {"where t between #2026-11-22 09:05:03# and #2026-11-23#",
       "where t between ?  and ? ",
       {"2026-11-22 09:05:03"s, "2026-11-23 00:00:00"s}},
      {"values(12, -12.5, .5, 1e3, 99999999999999999999)",
       "values(? , -? , ? , ? , ? )",
       {std::int64_t{12}, 12.5, 0.5, 1000.0, 1e20}},
      {"select c1 from t2 where 字段 <> '' group by 1,2 having 3>4 ORDER  BY 1, abs(5) desc limit "
       "6",
       "select c1 from t2 where 字段 <> ?  group by 1,2 having ? >?  ORDER  BY 1, abs(? ) desc "
       "limit ? ",
       {""s, std::int64_t{3}, std::int64_t{4}, std::int64_t{5}, std::int64_t{6}}},
      {"select (select a from b order by 1), 2",
       "select (select a from b order by 1), ? ",
       {std::int64_t{2}}},
  };
  for (const Case& one : cases) {
    const EngineStatement made = translate(one.statement);
    EXPECT_EQ(made.text, one.text);
    EXPECT_EQ(made.values, one.values) << one.statement;
  }
}

TEST(Dialect, RefusesWhatNoStatementCanBe) {
  for (const std::string& statement :
       {"select 'a''"s, "select #2026-02-30#"s, "select #2026-11-22"s, "select [a"s,
        "select [a\"b]"s, "select \"a"s, "select 1 -- x"s, "select /* x */ 1"s,
        "select 1; delete from sell"s, "select a\0b"s, "select ?"s, "select :a"s, "select `a`"s,
        "select 12ab"s, "select 1e999"s}) {
    EXPECT_THROW(translate(statement), StoreError) << statement;
  }
}

}  // namespace
