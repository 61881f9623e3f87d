#include "store/Dialect.h"

#include "StoreFixture.h"
#include "store/Literal.h"

using namespace std::string_literals;

TEST(DialectTest, MakesEveryLiteralAValue) {
  const std::tuple<std::string, const char*, std::vector<Value>> cases[] = {
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
      {"c1 from t2 where 字段 <> '' group by 1,2 having 3>4 ORDER  BY 1, abs(5) desc limit 6",
       "c1 from t2 where 字段 <> ?  group by 1,2 having ? >?  ORDER  BY 1, abs(? ) desc limit ? ",
       {""s, std::int64_t{3}, std::int64_t{4}, std::int64_t{5}, std::int64_t{6}}},
      {"(select a from b order by 1), 2", "(select a from b order by 1), ? ", {std::int64_t{2}}}};
  for (const auto& [statement, text, values] : cases) {
    const EngineStatement made = translate(statement);
    EXPECT_EQ(made.text, text);
    EXPECT_EQ(made.values, values) << statement;
  }
}

TEST(DialectTest, RefusesWhatNoStatementCanBe) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"引号没有结束", {"select 'a''"}},
      {"没有这个日期", {"select #2026-02-30#"}},
      {"日期没有结束", {"select #2026-11-22"}},
      {"名称没有结束", {"select [a", "select \"a"}},
      {"没有这个名称", {"select [a\"b]"}},
      {"不能有注释", {"select 1 -- x", "select /* x */ 1"}},
      {"只能有一条语句", {"select 1; delete from sell"}},
      {"有不认识的字符", {"select a\0b"s, "select ?", "select :a", "select `a`"}},
      {"数字写法不对", {"select 12ab"}},
      {"数字太大", {"select 1e999"}}};
  for (const auto& [why, statements] : cases) {
    for (const std::string& statement : statements)
      EXPECT_THAT([&] { translate(statement); }, refusal(why)) << statement;
  }
}
